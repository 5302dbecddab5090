#pragma once

#include "teskara/core/HostInterface.h"
#include "teskara/core/utf8string.h"

// The commands and objects of the toolkit, for programs that keep no list of them. Names are without regard to case.
class FlatCommands
{
public:
    void AddCommand(const char* name, CommandHandler body) { m_Commands[utf8stringnocase(name)] = body; }
    void RemoveCommand(const char* name) { m_Commands.erase(utf8stringnocase(name)); }
    void AddObject(const char* name, TopLevelObjectHandler body) { m_Objects[utf8stringnocase(name)] = body; }
    void RemoveObject(const char* name) { m_Objects.erase(utf8stringnocase(name)); }

    // A line of words with blanks between them; one with blanks in it stands in quotes. -1: there is no such command.
    int Run(const char* line) const;
    int Run(int argc, char** argv) const;

    // False: there is no value.
    bool Ask(const char* object, int argc, char** argv, _MvTypeVar& result) const;

private:
    NameMap<CommandHandler> m_Commands;
    NameMap<TopLevelObjectHandler> m_Objects;
};
