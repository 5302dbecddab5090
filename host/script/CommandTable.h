#pragma once

#include "teskara/core/HostInterface.h"

#include <map>
#include <string>

namespace host {

// The commands that can be typed or run by scripts. Names compare without regard to case.
class CommandTable
{
public:
    void Add(const char* name, CommandHandler handler);
    void Remove(const char* name);

    // Splits a line at its blanks, but not inside double quotes, and runs its command. -1 if there is no such command.
    int Execute(const char* line);

private:
    std::map<std::string, CommandHandler> m_Handlers; // by name in lower case
};

} // namespace host
