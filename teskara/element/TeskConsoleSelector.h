#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Limits.h"

class TeskConsole;

// Sends the host's output to another console for as long as it lives, and then to the one before. Selectors nest. Both
// turns may run scripts.
class TESKARA_EXPORT TeskConsoleSelector
{
public:
    // console: null is no console. Its full name is used; see text/ConsoleSelection.cpp.
    explicit TeskConsoleSelector(TeskConsole* console);
    explicit TeskConsoleSelector(const char* name);
    ~TeskConsoleSelector();
    TeskConsoleSelector(const TeskConsoleSelector&) = delete;
    TeskConsoleSelector& operator=(const TeskConsoleSelector&) = delete;

private:
    char m_Previous[Limits::TextBuffer1024]; // cut to what fits; empty if the host does not tell
};
