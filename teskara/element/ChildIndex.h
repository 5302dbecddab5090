#pragma once

#include "teskara/core/Types.h"
#include "teskara/core/utf8string.h"

#include <optional>
#include <span>
#include <string_view>
#include <unordered_map>
#include <vector>

class TeskElement;

// What a parent of many children keeps beside their list, so that a search need not go through memory from one child to
// the next. Each part is filled when it is first asked. Without memory there are no answers, and the list is walked.
class ChildIndex
{
public:
    // Of fewer children the list itself is walked: for a place on the screen, and for a name.
    static constexpr u32 LeastForPlaces = 16;
    static constexpr u32 LeastForNames = 128;

    // There is a new child at the end of the list; one is about to leave the parent; one has left its place in the list.
    void Enter(TeskElement& child);
    void Leave(const TeskElement& child);
    void ForgetOrder() { m_Children.clear(); }

    // The children of the parent from the bottom up to this one; empty if it is none of them.
    std::span<TeskElement* const> UpTo(const TeskElement& parent, const TeskElement& child);

    // The child of a name in lower case, or null. Nothing: several have that name, so the list must tell the first.
    std::optional<TeskElement*> Find(const TeskElement& parent, std::string_view name);

private:
    void FillPlaces(const TeskElement& parent);
    void FillNames(const TeskElement& parent);
    void AddName(TeskElement& child);

    std::vector<TeskElement*> m_Children; // in their order; empty if unknown
    std::unordered_map<std::string_view, TeskElement*, NameHash, NameEqual>
        m_Names; // null for several children of a name; empty if unknown
};
