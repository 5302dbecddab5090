#pragma once

#include "teskara/core/LockedList.h"

#include <cstddef>
#include <vector>

class XMLNode;

// Merges a template with those that its Template attribute names, and with theirs. Templates are found through the skin
// in force.
class TemplateChain
{
public:
    explicit TemplateChain(XMLNode* node);

    // The merged template as a tree of its own, which the caller deletes. Null if memory ran out. Asked for once.
    XMLNode* Merge();

private:
    // A node whose bases are being collected.
    struct Pass {
        XMLNode* Node;
        XMLNode* LastBase; // found on the pass before
        const char* NextName; // what is left of its list of names
    };

    void Collect();
    void Enter(XMLNode* node);
    XMLNode* NextListed(Pass& pass);

    LockedList<XMLNode> m_Entries; // the most basic one last
    std::vector<Pass> m_Passes; // lists within lists
    std::size_t m_Bytes = 0; // of all entries
    bool m_Full = false;
};
