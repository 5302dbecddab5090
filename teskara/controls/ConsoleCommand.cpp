#include "teskara/controls/ConsoleCommand.h"

#include "teskara/core/HostCalls.h"
#include "teskara/element/TeskConsoleSelector.h"

// The host is given copies. Without memory for them the command does not run.
void RunCommand(const utf8string& command, const utf8string& console)
{
    utf8string commandCopy;
    utf8string consoleCopy;
    if (!TryAssign(commandCopy, command.c_str()) || !TryAssign(consoleCopy, console.c_str()))
        return;

    if (consoleCopy.empty()) {
        Host::ExecuteCommand(commandCopy.c_str());
    } else {
        const TeskConsoleSelector selected(consoleCopy.c_str());
        Host::ExecuteCommand(commandCopy.c_str());
    }
}
