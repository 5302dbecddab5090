#pragma once

#include "teskara/core/CUIManager.h"

// Held while markup is read: a script may remove the very template that is being read, which then lives on until the
// last reading has ended.
class MarkupReading
{
public:
    MarkupReading() { g_UIManager.BeginReading(); }
    ~MarkupReading() { g_UIManager.EndReading(); }
    MarkupReading(const MarkupReading&) = delete;
    MarkupReading& operator=(const MarkupReading&) = delete;
};
