// The manager's road from an interface file to live elements. Every step may run scripts, and a script may delete
// anything, load other files and replace templates and skins.

#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/CUIManager.h"
#include "teskara/core/DepthScope.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Limits.h"
#include "teskara/core/MarkupReading.h"
#include "teskara/core/Messages.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/element/MarkupShape.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskElementFactory.h"
#include "teskara/element/TeskScreen.h"
#include "teskara/markup/MarkupNames.h"
#include "teskara/markup/SkinScope.h"
#include "teskara/markup/TemplateChain.h"
#include "teskara/markup/TeskSkin.h"
#include "teskara/markup/XMLDocument.h"
#include "teskara/markup/XMLHelper.h"
#include "teskara/markup/XMLNode.h"

#include <memory>

// What is to be loaded, and where to.
struct CUIManager::LoadRequest {
    TeskElement* Parent;
    const char* File;
    const char* ElementName; // null: all elements
    const char* NewName;
    bool Replace;
    TeskSkin* Skin;
};

namespace {

constexpr MarkupPart TemplatePart = {TemplateTag, "template element"};
constexpr MarkupPart SkinPart = {SkinTag, "skin"};
constexpr MarkupPart FileParts[] = {TemplatePart, SkinPart};

constexpr MarkupPart NameParts[] = {
    {NameAttribute, "string", MarkupPlace::Attribute},
    {TemplateAttribute, "templates", MarkupPlace::Attribute},
};

const MarkupShape g_FileShape({.Name = "interface", .Use = MarkupUse::Value, .Parts = {FileParts}, .Holds = "element"});
const MarkupShape g_TemplateShape(
    {.Name = TemplatePart.Form, .Use = MarkupUse::Value, .Parts = {NameParts}, .Holds = "value"});

bool IsElement(const XMLNode* node)
{
    return node->Type == XMLElementNode;
}

bool HasTag(const XMLNode* node, TagName tag)
{
    return node->HasName(tag.Text, tag.Hash);
}

const char* NameOf(XMLNode* node)
{
    return XMLHelper::GetStringAttribute(node, NameAttribute, "");
}

void LoadSkin(XMLNode* node)
{
    TeskSkin* skin = g_UIManager.NewSkin(NameOf(node));
    if (!skin)
        return;

    XMLNode* templateNode = g_UIManager.FindTemplate(XMLHelper::GetStringAttribute(node, TemplateAttribute, ""));
    if (!skin->FromXML(node, templateNode))
        g_UIManager.RemoveSkin(skin->Name.c_str());
}

// Only what stands directly under the screen can be replaced.
void DeleteFromScreen(const char* name)
{
    TeskElement* element = g_UIManager.FindElement(name);
    if (element && g_UIManager.Screen)
        g_UIManager.Screen->DeleteChild(element);
}

bool RefuseNamesake(TeskElement* parent, const char* name)
{
    const ElementWatch watch(*parent);
    const bool isTaken = parent->FindChild(name) != nullptr;
    if (!watch.Exists())
        return true; // and there is nobody to make a child for
    if (!isTaken)
        return false;

    Host::PrintLine(Messages::NameTaken, name, parent->Name.c_str());
    return true;
}

// Takes the name of the parent as a copy: making the element may have deleted it.
void ReportFailedCreation(const char* name, const utf8string& parentName)
{
    Host::PrintLine(Messages::CreationFailed, name, parentName.c_str());
}

// The last steps of every creation. Null if the element was deleted by one of them.
TeskElement* FinishElement(TeskElement& element)
{
    const ElementWatch watch(element);
    element.RecalculateSize(true);
    if (watch.Exists())
        element.OnCreate();
    if (watch.Exists())
        TeskElement::RunScript(element.Events.OnLoad);
    return watch.Get();
}

void LoadChild(TeskElement& parent, XMLNode* node)
{
    const ElementWatch watch(parent);
    const char* name = NameOf(node);
    if (g_UIManager.LoadElement(&parent, node->Name, name, node, nullptr) || !watch.Exists())
        return;

    Host::PrintLine(Messages::ChildFailed, node->Name, name, parent.Name.c_str());
}

// The node's list of children hides that of the template, even if it is empty.
void LoadChildren(TeskElement& element, XMLNode* node, XMLNode* templateNode)
{
    XMLNode* children = XMLHelper::GetChild(node, ChildrenTag);
    if (!children)
        children = XMLHelper::GetChild(templateNode, ChildrenTag);
    if (!children)
        return;

    const ElementWatch watch(element);
    for (XMLNode* child = children->FirstChild; child && watch.Exists(); child = child->Next) {
        if (IsElement(child))
            LoadChild(element, child);
    }
}

} // namespace

bool CUIManager::LoadInterfaceXML(const char* file, bool replace, TeskSkin* skin)
{
    return LoadInterface({Screen, file, nullptr, nullptr, replace, skin});
}

bool CUIManager::LoadInterfaceXML(
    const char* file, const char* elementName, const char* newName, bool replace, TeskSkin* skin)
{
    return LoadInterface({Screen, file, TextOrEmpty(elementName), newName, replace, skin});
}

bool CUIManager::LoadInterfaceXML(TeskElement* parent, const char* file, bool replace, TeskSkin* skin)
{
    return LoadInterface({parent, file, nullptr, nullptr, replace, skin});
}

bool CUIManager::LoadInterfaceXML(
    TeskElement* parent, const char* file, const char* elementName, const char* newName, bool replace, TeskSkin* skin)
{
    return LoadInterface({parent, file, TextOrEmpty(elementName), newName, replace, skin});
}

// Finds and parses a file. root is the element that holds its contents.
bool CUIManager::OpenInterface(const char* file, XMLDocument& document, XMLNode*& root)
{
    char path[sizeof(CurrentFile)];
    if (!Host::LocateFile(TextOrEmpty(file), path, sizeof(path))) {
        Host::PrintLine(Messages::NoFile);
        return false;
    }
    CopyBounded(CurrentFile, sizeof(CurrentFile), path);
    if (!document.ParseFile(path)) {
        Host::PrintLine(Messages::ParseFailed, path, document.ErrorText);
        return false;
    }
    root = XMLHelper::GetChild(document.Root, RootTagName);
    if (!root) {
        Host::PrintLine(Messages::NoRoot, RootTagName, path);
        return false;
    }
    return true;
}

bool CUIManager::LoadInterface(const LoadRequest& request)
try {
    const DepthScope depth(m_LoadDepth, Limits::NestedLoads);
    if (!request.Parent || !depth.Entered() || m_TearingDown || Host::IsAnswering())
        return false;

    const ElementWatch parent(*request.Parent);
    const SkinWatch requestedSkin(request.Skin);
    const auto document = std::make_unique<XMLDocument>();
    XMLNode* root = nullptr;
    if (!OpenInterface(request.File, *document, root))
        return false;

    const SkinScope skin(requestedSkin.Get());
    const MarkupReading reading;
    TemplateRoom room = {Limits::TemplateFirstBasesBytes, Limits::TemplateOtherBasesBytes};
    for (XMLNode* node = root->FirstChild; node && parent.Exists(); node = node->Next) {
        if (!IsElement(node))
            continue;
        if (HasTag(node, TemplateTag))
            MergeTemplate(NameOf(node), node, room);
        else if (HasTag(node, SkinTag))
            LoadSkin(node);
        else
            LoadTopLevelElement(request, node);
    }
    return true;
} catch (...) {
    return false; // no memory
}

void CUIManager::LoadTopLevelElement(const LoadRequest& request, XMLNode* node)
{
    const char* name = NameOf(node);
    if (request.ElementName && !EqualsNoCase(name, request.ElementName))
        return;

    const ElementWatch parent(*request.Parent);
    const char* newName = request.ElementName ? request.NewName : name;
    if (request.Replace)
        DeleteFromScreen(newName);
    if (parent.Exists())
        LoadElement(request.Parent, node->Name, newName, node, nullptr);
}

bool CUIManager::UnloadInterfaceXML(const char* file)
try {
    if (Host::IsAnswering())
        return false;

    const auto document = std::make_unique<XMLDocument>();
    XMLNode* root = nullptr;
    if (!OpenInterface(file, *document, root))
        return false;

    for (XMLNode* node = root->FirstChild; node; node = node->Next) {
        if (IsElement(node))
            DeleteFromScreen(NameOf(node));
    }
    return true;
} catch (...) {
    return false; // no memory
}

TeskElement* CUIManager::LoadElement(TeskElement* parent, const char* type, const char* name)
try {
    if (!parent || !type || !name || !*name || Host::IsAnswering())
        return nullptr;

    TeskElementFactory* factory = FindFactory(type);
    if (!factory) {
        Host::PrintLine(Messages::NoFactoryByName, type);
        return nullptr;
    }
    if (RefuseNamesake(parent, name))
        return nullptr;

    const utf8string parentName = parent->Name;
    TeskElement* element = factory->Create(parent, name);
    if (!element) {
        ReportFailedCreation(name, parentName);
        return nullptr;
    }
    return FinishElement(*element);
} catch (...) {
    return nullptr; // no memory
}

TeskElement* CUIManager::LoadElement(
    TeskElement* parent, const char* type, const char* name, XMLNode* node, const char* templateName)
try {
    if (!parent || !node || !type || !name || !*name || Host::IsAnswering())
        return nullptr;

    TeskElementFactory* factory = FindFactory(type);
    if (!factory) {
        Host::PrintLine(Messages::NoFactoryForNode, type);
        return nullptr;
    }
    if (RefuseNamesake(parent, name))
        return nullptr;

    const MarkupReading reading;
    if (!templateName)
        templateName = XMLHelper::GetStringAttribute(node, TemplateAttribute, "");
    const utf8string parentName = parent->Name;
    TeskElement* element = factory->Create(parent, name, node, templateName);
    if (!element) {
        ReportFailedCreation(name, parentName);
        return nullptr;
    }

    const ElementWatch watch(*element);
    LoadChildren(*element, node, FindTemplate(templateName));
    return watch.Exists() ? FinishElement(*element) : nullptr;
} catch (...) {
    return nullptr; // no memory
}
