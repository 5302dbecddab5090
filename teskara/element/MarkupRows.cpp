#include "teskara/element/MarkupRows.h"

constinit const MarkupRows* MarkupRows::g_First = nullptr;

MarkupRows::MarkupRows() : m_Next(g_First)
{
    g_First = this;
}

// Modules may end in any order.
MarkupRows::~MarkupRows()
{
    const MarkupRows** link = &g_First;
    while (*link != this)
        link = &(*link)->m_Next;
    *link = m_Next;
}
