#pragma once

#include "teskara/core/Types.h"
#include "teskara/markup/NameSlots.h"

#include <cstddef>
#include <string_view>
#include <vector>

class XMLNode;

// The element children of a template that is being merged, by their tags, so that many of them cost no search. Takes
// little more memory than they are many. Throws std::bad_alloc.
class ChildrenByTag
{
public:
    // The child stands behind those of its tag that are there. Its name must stay good.
    void Add(XMLNode* child);

    // Takes out the first child of that tag in any case. Null if there is none.
    XMLNode* TakeFirst(std::string_view tag);

private:
    // By the numbers of the children, which begin with 1.
    struct Tag {
        u32 First = 0; // 0: all are taken out
        u32 Last = 0; // also when it is taken out, since it tells the name

        explicit operator bool() const { return Last != 0; }
    };

    const char* NameOf(const Tag& tag) const;
    Tag& Find(std::string_view tag);

    std::vector<XMLNode*> m_Nodes;
    std::vector<u32> m_Next; // of the same tag, or 0
    NameSlots<Tag> m_Tags;
    std::size_t m_TagCount = 0;
};
