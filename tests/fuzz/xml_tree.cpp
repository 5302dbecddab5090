// Documents that are right: a tree is made from the bytes, said as markup in some way, parsed, looked through, changed
// and copied in step with the plain one, and said and parsed once more. Both must stay the same all the way.

#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLDocument.h"
#include "teskara/markup/XMLHelper.h"
#include "tests/fuzz/MarkupMaker.h"
#include "tests/fuzz/ModelCheck.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr std::size_t MostChanges = 8;

XMLNode* NextInTree(XMLNode* node)
{
    if (node->FirstChild)
        return node->FirstChild;
    while (node && !node->Next)
        node = node->Parent;
    return node ? node->Next : nullptr;
}

// The node that stands so far behind the first one.
XMLNode* NodeAt(XMLNode* node, std::size_t place)
{
    for (; place > 0; --place)
        node = NextInTree(node);
    return node;
}

// Whether a read may end inside a character, of which then nothing is left.
bool IsCutInCharacters(const std::string& text)
{
    constexpr std::size_t FirstRead = 4096;
    return text.size() > FirstRead
        && std::any_of(text.begin(), text.end(), [](char byte) { return (byte & 0x80) != 0; });
}

// A parsed tree and its plain twin.
class Twins
{
public:
    Twins(MarkupTree tree, Choices& choices) : m_Choices(choices), m_Maker(choices), m_Plain(std::move(tree))
    {
        for (const auto& child : m_Plain.Children)
            child->Parent = &m_Plain;
    }

    // False: the markup is of a kind that does not come through whole.
    bool Parse()
    {
        const std::string text = m_Maker.Write(m_Plain);
        if (IsCutInCharacters(text))
            return false;
        m_Document = std::make_unique<XMLDocument>();
        m_Document->AddEntity("e", MarkupMaker::EntityValue);
        m_Document->AddEntity("empty", "");
        Require(m_Document->ParseBuffer(text.c_str(), text.size()), "right markup is refused");
        Require(m_Plain.IsSame(m_Document->Root), "the parsed tree differs");
        return true;
    }

    // Makes a few changes, if there is something to choose them by.
    void Change()
    {
        for (std::size_t count = 0; count < MostChanges && !m_Choices.AreUsedUp(); ++count) {
            const std::vector<MarkupTree*> all = m_Plain.All();
            const std::size_t place = m_Choices.Below(all.size());
            ChangeAt(*all[place], *NodeAt(m_Document->Root, place));
        }
        Require(m_Plain.IsSame(m_Document->Root), "the changed tree differs");
    }

    void CheckCopy()
    {
        const XMLTree copy(m_Document->Root->Clone(nullptr));
        m_Document->Reset();
        Require(m_Plain.IsSame(copy.get()), "the copy differs");
    }

private:
    void ChangeAt(MarkupTree& plain, XMLNode& node)
    {
        switch (m_Choices.Below(6)) {
        case 0:
            AddChild(plain, node);
            break;
        case 1:
            SetAttribute(plain, node);
            break;
        case 2:
            CopyBelow(plain, node);
            break;
        case 3:
            Remove(plain, node);
            break;
        default:
            LookUp(plain, node);
        }
    }

    static bool TakesChildren(const MarkupTree& plain) { return plain.Type == XMLElementNode; }

    // Elements only: of others not all can stand beside each other in markup.
    void AddChild(MarkupTree& plain, XMLNode& node)
    {
        if (!TakesChildren(plain))
            return;
        const std::string name = m_Maker.Name();
        Require(XMLNode::Create(&node, name, XMLElementNode) != nullptr, "no child is made");
        plain.Add(XMLElementNode, name);
    }

    void SetAttribute(MarkupTree& plain, XMLNode& node)
    {
        if (!TakesChildren(plain))
            return;
        const std::string name = m_Maker.Name();
        const std::string value = m_Maker.Text();
        node.SetAttribute(name.c_str(), value.c_str());
        plain.SetAttribute(name, value);
    }

    void CopyBelow(MarkupTree& plain, XMLNode& node)
    {
        const std::vector<MarkupTree*> all = m_Plain.All();
        const std::size_t place = m_Choices.Below(all.size());
        if (!TakesChildren(plain) || all[place]->Type != XMLElementNode || all.size() > MarkupMaker::MostNodes)
            return;
        Require(NodeAt(m_Document->Root, place)->Clone(&node) != nullptr, "no copy is made");
        plain.Take(all[place]->Copy());
    }

    // Elements that keep two texts apart stay.
    void Remove(MarkupTree& plain, XMLNode& node)
    {
        if (plain.Type != XMLElementNode || plain.Parent->Type == XMLRootNode)
            return;
        if (node.Prev && node.Next && node.Prev->Type == XMLTextNode && node.Next->Type == XMLTextNode)
            return;
        (node.Prev ? node.Prev->Next : node.Parent->FirstChild) = node.Next;
        (node.Next ? node.Next->Prev : node.Parent->LastChild) = node.Prev;
        node.Delete();
        std::erase_if(plain.Parent->Children, [&plain](const auto& child) { return child.get() == &plain; });
    }

    void LookUp(const MarkupTree& plain, XMLNode& node)
    {
        const std::string name = m_Maker.Name();
        const MarkupTree* const child = plain.FindChild(name);
        const XMLNode* const found = XMLHelper::GetChild(&node, name.c_str());
        Require(child ? child->IsSame(found) : !found, "another child is found");
        const std::string* const value = plain.FindAttribute(name);
        const XMLAttribute* const attribute = node.FindAttribute(name);
        Require(value ? attribute && *value == attribute->Value : !attribute, "another attribute is found");
    }

    Choices& m_Choices;
    MarkupMaker m_Maker;
    MarkupTree m_Plain;
    std::unique_ptr<XMLDocument> m_Document;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    Choices choices(data, size);
    Twins twins(MarkupMaker(choices).MakeTree(), choices);
    if (twins.Parse() && !choices.AreUsedUp()) {
        twins.Change();
        twins.CheckCopy();
        twins.Parse();
    }
    return 0;
}
