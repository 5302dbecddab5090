#pragma once

#include "teskara/core/HostInterface.h"

#include <map>
#include <string>
#include <string_view>

// The commands that the toolkit added. Names are compared without regard to case.
class HostCommands
{
public:
    void Add(const char* name, CommandHandler handler);
    void Remove(const char* name);

    // Runs one command line, split at blanks outside double quotes. -1: there is no such command.
    int Execute(std::string_view line) const;

private:
    struct Row {
        std::string Name;
        CommandHandler Handler = nullptr;
    };
    std::map<std::string, Row> m_Commands; // by lower-case name
};
