#include "teskara/markup/TemplateChain.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/Limits.h"
#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLHelper.h"
#include "teskara/markup/XMLNode.h"

#include <cstring>

namespace {

const char* BaseNames(XMLNode* node)
{
    return XMLHelper::GetStringAttribute(node, "Template", "");
}

void RemoveChild(XMLNode* parent, XMLNode* child)
{
    (child->Prev ? child->Prev->Next : parent->FirstChild) = child->Next;
    (child->Next ? child->Next->Prev : parent->LastChild) = child->Prev;
    XMLNode::Delete(child);
}

// An element takes the place of the first one of its tag, and stands at the end. Texts and comments add up.
void MergeInto(XMLNode* target, XMLNode* source)
{
    for (XMLAttribute* attribute = source->Attributes; attribute; attribute = attribute->Next)
        target->SetAttribute(attribute->Name, attribute->Value);
    for (XMLNode* child = source->FirstChild; child; child = child->Next) {
        if (child->Type == XMLElementNode) {
            if (XMLNode* replaced = XMLHelper::GetChild(target, child->Name, child->NameHash))
                RemoveChild(target, replaced);
        }
        child->Clone(target);
    }
}

} // namespace

TemplateChain::TemplateChain(XMLNode* node)
{
    Enter(node);
    m_Passes.push_back({node, nullptr, BaseNames(node)});
    Collect();
}

void TemplateChain::Enter(XMLNode* node)
{
    m_Entries.Push(node);
}

// A name without a comma leads to the next node, until a node names the one just found. With commas only the names
// that a comma ends count, each a chain of its own; the node stays, so its list is taken twice.
void TemplateChain::Collect()
{
    while (!m_Passes.empty() && m_Entries.Count() < Limits::TemplateChainEntries) {
        Pass& pass = m_Passes.back();
        if (std::strchr(pass.NextName, ',')) {
            if (XMLNode* listed = NextListed(pass)) {
                Enter(listed);
                m_Passes.push_back({listed, nullptr, BaseNames(listed)});
            }
            continue;
        }

        const char* names = BaseNames(pass.Node);
        XMLNode* next = std::strchr(names, ',') ? pass.Node : g_UIManager.FindTemplate(names);
        if (!next || next == pass.LastBase) {
            m_Passes.pop_back();
            continue;
        }
        Enter(next);
        pass = {next, next, BaseNames(next)};
    }
}

// Takes the next name off a list and looks it up.
XMLNode* TemplateChain::NextListed(Pass& pass)
{
    const char* comma = std::strchr(pass.NextName, ',');
    const utf8string name(pass.NextName, comma);
    pass.NextName = comma + 1;
    return g_UIManager.FindTemplate(name.c_str());
}

XMLNode* TemplateChain::Merge()
{
    XMLNode* merged = m_Entries.Pop()->Clone(nullptr);
    while (merged && !m_Entries.IsEmpty())
        MergeInto(merged, m_Entries.Pop());
    return merged;
}
