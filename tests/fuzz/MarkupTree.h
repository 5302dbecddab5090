#pragma once

#include "teskara/markup/XMLNode.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// A tree of markup in the plainest way there is, to hold the toolkit's trees against.
struct MarkupTree {
    u32 Type = XMLElementNode;
    std::string Name;
    MarkupTree* Parent = nullptr;
    std::vector<std::pair<std::string, std::string>> Attributes;
    std::vector<std::unique_ptr<MarkupTree>> Children;

    MarkupTree* Add(u32 type, std::string_view name);
    void Take(std::unique_ptr<MarkupTree> child);
    std::unique_ptr<MarkupTree> Copy() const;
    void SetAttribute(std::string_view name, std::string_view value);

    // Null: there is none of that name, in any case.
    const std::string* FindAttribute(std::string_view name) const;
    const MarkupTree* FindChild(std::string_view name) const;

    // All nodes in the order of the markup, this one first.
    std::vector<MarkupTree*> All();

    // How many All would tell of.
    std::size_t CountNodes() const;

    // Whether the toolkit's tree says the same, and its links fit.
    bool IsSame(const XMLNode* node) const;
};
