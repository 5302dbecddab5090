#include "teskara/element/EventRows.h"

constinit const EventRows* EventRows::g_First = nullptr;

EventRows::EventRows() : m_Next(g_First)
{
    g_First = this;
}

// Modules may end in any order.
EventRows::~EventRows()
{
    const EventRows** link = &g_First;
    while (*link != this)
        link = &(*link)->m_Next;
    *link = m_Next;
}
