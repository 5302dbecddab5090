// The manager's templates and skins.

#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Limits.h"
#include "teskara/markup/MarkupNames.h"
#include "teskara/markup/TemplateChain.h"
#include "teskara/markup/TeskSkin.h"
#include "teskara/markup/XMLDocument.h"
#include "teskara/markup/XMLHelper.h"
#include "teskara/markup/XMLNode.h"

#include <utility>

namespace {

bool IsTemplate(const XMLNode* node)
{
    return node && node->Type == XMLElementNode && node->HasName(TemplateTag.Text, TemplateTag.Hash);
}

bool IsEmpty(const char* text)
{
    return !text || !*text;
}

} // namespace

void DeleteTemplate::operator()(XMLNode* node) const
{
    XMLNode::Delete(node);
}

XMLNode* CUIManager::AddTemplate(const char* name, XMLNode* node)
{
    TemplateRoom room = {Limits::TemplateChainBytes, Limits::TemplateChainBytes};
    return MergeTemplate(name, node, room);
}

// The old one is out of the store before the bases are looked up, and lives until the copy is made, since node may be
// part of it. room: see TemplateChain.
XMLNode* CUIManager::MergeTemplate(const char* name, XMLNode* node, TemplateRoom& room)
try {
    if (IsEmpty(name) || !IsTemplate(node) || Host::IsAnswering())
        return nullptr;

    const utf8string copiedName = name;
    StoredTemplate old = TakeTemplate(name);
    const bool inherits = *XMLHelper::GetStringAttribute(node, TemplateAttribute, "") != 0;
    StoredTemplate merged(inherits ? TemplateChain(node, room).Merge() : node->Clone(nullptr));
    RetireTemplate(std::move(old));
    return StoreTemplate(copiedName.c_str(), std::move(merged));
} catch (...) {
    return nullptr;
}

XMLNode* CUIManager::AddTemplate(const char* name, const char* markup)
try {
    if (IsEmpty(name) || IsEmpty(markup) || Host::IsAnswering())
        return nullptr;

    XMLDocument document;
    if (!document.ParseBuffer(markup))
        return nullptr;

    XMLNode* node = document.Root->FirstChild;
    if (!IsTemplate(node) || node->Next)
        return nullptr;

    const utf8string copiedName = name; // which may be part of the old one
    RetireTemplate(TakeTemplate(name));
    return StoreTemplate(copiedName.c_str(), StoredTemplate(node->Clone(nullptr)));
} catch (...) {
    return nullptr;
}

// There is a place for each template among the retired ones, so that none is lost when there is no memory.
XMLNode* CUIManager::StoreTemplate(const char* name, StoredTemplate node)
{
    if (!node)
        return nullptr;

    const std::size_t places = m_RetiredTemplates.size() + Templates.size() + 1;
    if (m_RetiredTemplates.capacity() < places)
        m_RetiredTemplates.reserve(2 * places);
    return Templates.insert_or_assign(utf8stringnocase(name), std::move(node)).first->second.get();
}

// Takes a template out of the store; null if there is none of that name.
StoredTemplate CUIManager::TakeTemplate(const char* name)
{
    const auto entry = Templates.find(std::string_view(TextOrEmpty(name)));
    if (entry == Templates.end())
        return nullptr;

    StoredTemplate taken = std::move(entry->second);
    Templates.erase(entry);
    return taken;
}

// Somebody may be reading it.
void CUIManager::RetireTemplate(StoredTemplate node)
{
    if (node && m_MarkupReaders != 0)
        m_RetiredTemplates.push_back(std::move(node));
}

void CUIManager::EndReading()
{
    if (--m_MarkupReaders == 0)
        m_RetiredTemplates.clear();
}

void CUIManager::RemoveTemplate(const char* name)
{
    if (!Host::IsAnswering())
        RetireTemplate(TakeTemplate(name));
}

void CUIManager::ClearTemplates()
{
    if (Host::IsAnswering())
        return;

    for (auto& entry : Templates)
        RetireTemplate(std::move(entry.second));
    Templates.clear();
}

// A skin that names a missing template makes the lookup fail.
XMLNode* CUIManager::FindTemplate(const char* name)
{
    if (IsEmpty(name))
        return nullptr;

    const char* skinned = CurrentSkin ? CurrentSkin->FindTemplate(name) : nullptr;
    const auto entry = Templates.find(std::string_view(skinned ? skinned : name));
    return entry == Templates.end() ? nullptr : entry->second.get();
}

TeskSkin* CUIManager::NewSkin(const char* name)
try {
    if (IsEmpty(name))
        return nullptr;

    auto skin = std::make_shared<TeskSkin>(name);
    RemoveSkin(skin->Name.c_str()); // name may be the old one's
    return Skins.insert_or_assign(utf8stringnocase(skin->Name), skin).first->second.get();
} catch (...) {
    return nullptr;
}

TeskSkin* CUIManager::FindSkin(const char* name)
{
    const auto entry = Skins.find(std::string_view(TextOrEmpty(name)));
    return entry == Skins.end() ? nullptr : entry->second.get();
}

// A skin that dies while it is in force leaves none in force.
void CUIManager::RemoveSkin(const char* name)
{
    const auto entry = Skins.find(std::string_view(TextOrEmpty(name)));
    if (entry == Skins.end())
        return;

    if (CurrentSkin == entry->second.get())
        CurrentSkin = nullptr;
    Skins.erase(entry);
}

std::weak_ptr<TeskSkin> CUIManager::ShareSkin(const TeskSkin* skin) const
{
    for (const auto& entry : Skins) {
        if (entry.second.get() == skin)
            return entry.second;
    }
    return {};
}
