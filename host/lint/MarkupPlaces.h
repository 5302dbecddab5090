#pragma once

#include "teskara/core/Types.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>

class XMLAttribute;
class XMLNode;

namespace host {

// Where the nodes and attributes of a parsed text begin in it. The text is walked in step with the tree that the parser
// made of it; from the first difference on nothing is known.
class MarkupPlaces
{
public:
    // root: of the document. Both are borrowed.
    MarkupPlaces(std::string_view text, const XMLNode* root);

    // The byte at which a tag's bracket, a text or an attribute's name stands; nothing if that is not known.
    std::optional<std::size_t> Find(const XMLNode* node) const;
    std::optional<std::size_t> Find(const XMLAttribute* attribute) const;

    // The byte at which the attribute's value begins.
    std::optional<std::size_t> FindValue(const XMLAttribute* attribute) const;

private:
    friend class MarkupWalk;

    struct AttributePlace {
        std::size_t Name;
        std::size_t Value;
    };

    std::unordered_map<const XMLNode*, std::size_t> m_Nodes;
    std::unordered_map<const XMLAttribute*, AttributePlace> m_Attributes;
};

} // namespace host
