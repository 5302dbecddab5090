#include "teskara/element/MarkupShape.h"

constinit const MarkupShape* MarkupShape::g_First = nullptr;

MarkupShape::MarkupShape(const Description& description) : Is(description), m_Next(g_First)
{
    g_First = this;
}

// Modules may end in any order.
MarkupShape::~MarkupShape()
{
    const MarkupShape** link = &g_First;
    while (*link != this)
        link = &(*link)->m_Next;
    *link = m_Next;
}
