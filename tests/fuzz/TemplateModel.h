#pragma once

#include "tests/fuzz/MarkupTree.h"

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The templates and skins of the manager, kept in the plainest way. Names compare without regard to case.
class TemplateModel
{
public:
    using Tree = std::unique_ptr<MarkupTree>;
    using Skin = std::map<std::string, std::string>; // where each name leads to
    using SkinPointer = std::shared_ptr<Skin>;

    // The tree that a template becomes with all that it names, when it is stored. Nothing: the chain has more entries
    // than that.
    std::optional<Tree> Merge(std::string_view name, const MarkupTree& node, std::size_t mostEntries) const;

    void Store(std::string_view name, Tree tree) { Templates[Folded(name)] = std::move(tree); }
    void Remove(std::string_view name) { Templates.erase(Folded(name)); }

    // Through the skin in force.
    const MarkupTree* Find(std::string_view name) const { return Find(name, {}); }

    SkinPointer FindSkin(std::string_view name) const;
    void NewSkin(std::string_view name);
    void RemoveSkin(std::string_view name);
    static void AddLine(Skin& skin, std::string_view base, std::string_view skinned);
    static void AddLines(Skin& skin, const MarkupTree& node);

    static std::string Folded(std::string_view name);

    std::map<std::string, Tree> Templates;
    std::map<std::string, SkinPointer> Skins;
    SkinPointer Current;

private:
    using Entries = std::vector<const MarkupTree*>;

    const MarkupTree* Find(std::string_view name, std::string_view hidden) const;
    bool Follow(const MarkupTree* node, std::string_view hidden, std::size_t mostEntries, Entries& entries) const;
};
