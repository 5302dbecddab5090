#include "teskara/element/EventTable.h"

constinit const EventRows* EventRows::g_First = nullptr;

EventRows::EventRows() : m_Next(g_First)
{
    g_First = this;
}

// The tables of an extension end with it, before others that came earlier.
EventRows::~EventRows()
{
    const EventRows** link = &g_First;
    while (*link != this)
        link = &(*link)->m_Next;
    *link = m_Next;
}
