#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Limits.h"

// Sends the host's output to another console for as long as it lives, and then to the one before. Selectors nest. Both
// turns may run scripts.
class TESKARA_EXPORT TeskConsoleSelector
{
public:
    explicit TeskConsoleSelector(const char* name);
    ~TeskConsoleSelector();
    TeskConsoleSelector(const TeskConsoleSelector&) = delete;
    TeskConsoleSelector& operator=(const TeskConsoleSelector&) = delete;

private:
    char m_Previous[Limits::TextBuffer1024]; // cut to what fits; empty if the host does not tell
};
