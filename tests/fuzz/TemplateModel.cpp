#include "tests/fuzz/TemplateModel.h"

#include <algorithm>

namespace {

std::string ValueOf(const MarkupTree& node, std::string_view attribute)
{
    const std::string* const value = node.FindAttribute(attribute);
    return value ? *value : std::string();
}

// The names in a list that a comma ends.
std::vector<std::string> Listed(const std::string& names)
{
    std::vector<std::string> listed;
    std::size_t begin = 0;
    for (std::size_t end = names.find(','); end != names.npos; end = names.find(',', begin)) {
        listed.push_back(names.substr(begin, end - begin));
        begin = end + 1;
    }
    return listed;
}

// An element takes the place of the first one of its tag, at the end; the rest adds up.
void Overlay(MarkupTree& onto, const MarkupTree& node)
{
    for (const auto& [name, value] : node.Attributes)
        onto.SetAttribute(name, value);
    for (const auto& child : node.Children) {
        const MarkupTree* const old = child->Type == XMLElementNode ? onto.FindChild(child->Name) : nullptr;
        std::erase_if(onto.Children, [old](const auto& entry) { return entry.get() == old; });
        onto.Take(child->Copy());
    }
}

} // namespace

std::string TemplateModel::Folded(std::string_view name)
{
    std::string folded(name);
    for (char& letter : folded)
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
    return folded;
}

std::optional<TemplateModel::Tree> TemplateModel::Merge(
    std::string_view name, const MarkupTree& node, std::size_t mostEntries) const
{
    if (ValueOf(node, "Template").empty())
        return node.Copy();

    Entries entries = {&node};
    if (!Follow(&node, Folded(name), mostEntries, entries))
        return std::nullopt;

    Tree merged = entries.back()->Copy();
    for (entries.pop_back(); !entries.empty(); entries.pop_back())
        Overlay(*merged, *entries.back());
    return merged;
}

// hidden: the name of what is being stored, which is not found meanwhile.
const MarkupTree* TemplateModel::Find(std::string_view name, std::string_view hidden) const
{
    if (name.empty())
        return nullptr;

    std::string folded = Folded(name);
    if (Current && Current->count(folded) != 0)
        folded = Folded(Current->at(folded));
    const auto entry = Templates.find(folded);
    return entry == Templates.end() || folded == hidden ? nullptr : entry->second.get();
}

// A list leads to each of its names, and then once more to the node that has it. False: there are too many entries.
bool TemplateModel::Follow(
    const MarkupTree* node, std::string_view hidden, std::size_t mostEntries, Entries& entries) const
{
    const MarkupTree* former = nullptr;
    while (entries.size() < mostEntries) {
        const std::string names = ValueOf(*node, "Template");
        const std::vector<std::string> listed = Listed(names);
        for (const std::string& name : listed) {
            const MarkupTree* const base = Find(name, hidden);
            if (!base)
                continue;
            entries.push_back(base);
            if (!Follow(base, hidden, mostEntries, entries))
                return false;
        }
        const MarkupTree* const next = listed.empty() ? Find(names, hidden) : node;
        if (!next || next == former)
            return true;
        entries.push_back(next);
        former = node = next;
    }
    return false;
}

TemplateModel::SkinPointer TemplateModel::FindSkin(std::string_view name) const
{
    const auto entry = Skins.find(Folded(name));
    return entry == Skins.end() ? nullptr : entry->second;
}

void TemplateModel::NewSkin(std::string_view name)
{
    RemoveSkin(name);
    if (!name.empty())
        Skins[Folded(name)] = std::make_shared<Skin>();
}

void TemplateModel::RemoveSkin(std::string_view name)
{
    if (Current && Current == FindSkin(name))
        Current = nullptr;
    Skins.erase(Folded(name));
}

void TemplateModel::AddLine(Skin& skin, std::string_view base, std::string_view skinned)
{
    if (!base.empty())
        skin[Folded(base)] = skinned;
}

void TemplateModel::AddLines(Skin& skin, const MarkupTree& node)
{
    for (const auto& line : node.Children) {
        if (line->Type != XMLElementNode || Folded(line->Name) != "skintemplate")
            continue;

        const std::string base = ValueOf(*line, "Base");
        const std::string skinned = ValueOf(*line, "Skin");
        const std::string prefix = ValueOf(*line, "SkinPrefix");
        if (!skinned.empty())
            AddLine(skin, base, skinned);
        else if (!prefix.empty())
            AddLine(skin, base, prefix + base);
    }
}
