#pragma once

#include "teskara/core/Limits.h"
#include "teskara/core/LockedList.h"

#include <cstddef>
#include <vector>

class XMLNode;

// Bytes that bases may still hold together: the first ones of their chains, and the others.
struct TemplateRoom {
    std::size_t FirstBases;
    std::size_t OtherBases;
};

// Merges a template with those that its Template attribute names, and with theirs. Templates are found through the skin
// in force.
class TemplateChain
{
public:
    // room: what the bases hold is taken off, so that chains can share it.
    TemplateChain(XMLNode* node, TemplateRoom& room);

    // The merged template as a tree of its own, which the caller deletes. Null if memory ran out. Asked for once.
    XMLNode* Merge();

private:
    // A node whose bases are being collected.
    struct Pass {
        XMLNode* Node;
        XMLNode* LastBase; // found on the pass before
        const char* NextName; // what is left of its list of names
    };

    std::size_t HeldBytes() const { return Limits::TemplateChainBytes - m_Room; }
    void Collect();
    void Enter(XMLNode* base);
    XMLNode* NextListed(Pass& pass);

    LockedList<XMLNode> m_Entries; // the most basic one last
    std::vector<Pass> m_Passes; // lists within lists
    TemplateRoom& m_BaseRoom;
    std::size_t m_Room; // bytes that this chain may still hold
    bool m_Full = false;
};
