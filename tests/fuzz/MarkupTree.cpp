#include "tests/fuzz/MarkupTree.h"

#include "teskara/markup/XMLAttribute.h"

#include <algorithm>

namespace {

char Lower(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 32) : character;
}

bool SameName(std::string_view left, std::string_view right)
{
    return std::equal(
        left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) { return Lower(a) == Lower(b); });
}

bool HasAttributes(const XMLNode& node, const MarkupTree& tree)
{
    const XMLAttribute* attribute = node.Attributes;
    for (const auto& [name, value] : tree.Attributes) {
        if (!attribute || attribute->Name != name || attribute->Value != value)
            return false;
        attribute = attribute->Next;
    }
    return !attribute;
}

} // namespace

MarkupTree* MarkupTree::Add(u32 type, std::string_view name)
{
    auto child = std::make_unique<MarkupTree>();
    child->Type = type;
    child->Name = name;
    Take(std::move(child));
    return Children.back().get();
}

void MarkupTree::Take(std::unique_ptr<MarkupTree> child)
{
    child->Parent = this;
    Children.push_back(std::move(child));
}

std::unique_ptr<MarkupTree> MarkupTree::Copy() const
{
    auto copy = std::make_unique<MarkupTree>();
    copy->Type = Type;
    copy->Name = Name;
    copy->Attributes = Attributes;
    for (const auto& child : Children)
        copy->Take(child->Copy());
    return copy;
}

void MarkupTree::SetAttribute(std::string_view name, std::string_view value)
{
    for (auto& [known, old] : Attributes) {
        if (SameName(known, name)) {
            old = value;
            return;
        }
    }
    Attributes.emplace_back(name, value);
}

const std::string* MarkupTree::FindAttribute(std::string_view name) const
{
    for (const auto& [known, value] : Attributes) {
        if (SameName(known, name))
            return &value;
    }
    return nullptr;
}

const MarkupTree* MarkupTree::FindChild(std::string_view name) const
{
    for (const auto& child : Children) {
        if (child->Type == XMLElementNode && SameName(child->Name, name))
            return child.get();
    }
    return nullptr;
}

std::vector<MarkupTree*> MarkupTree::All()
{
    std::vector<MarkupTree*> all = {this};
    for (const auto& child : Children) {
        const std::vector<MarkupTree*> below = child->All();
        all.insert(all.end(), below.begin(), below.end());
    }
    return all;
}

std::size_t MarkupTree::CountNodes() const
{
    std::size_t count = 1;
    for (const auto& child : Children)
        count += child->CountNodes();
    return count;
}

bool MarkupTree::IsSame(const XMLNode* node) const
{
    if (!node || node->Type != Type || node->Name != Name || !HasAttributes(*node, *this))
        return false;

    const XMLNode* former = nullptr;
    const XMLNode* next = node->FirstChild;
    for (const auto& child : Children) {
        if (!next || next->Parent != node || next->Prev != former || !child->IsSame(next))
            return false;
        former = next;
        next = next->Next;
    }
    return !next && node->LastChild == former;
}
