#include "host/ConsoleCommands.h"

#include "host/Console.h"
#include "host/script/CommandTable.h"

#include <string>

namespace host {

void AddConsoleCommands(CommandTable& commands, Console& console)
{
    // echo WORD...
    commands.Add("echo", [&console](int argc, char** argv) {
        std::string line;
        for (int index = 1; index < argc; ++index)
            line += (index > 1 ? " " : "") + std::string(argv[index]);
        console.Answer(line);
        return 0;
    });

    // help
    commands.Add("help", [&commands, &console](int, char**) {
        std::string line = "Commands:";
        for (const std::string& name : commands.Names())
            line += ' ' + name;
        console.Answer(line);
        return 0;
    });
}

} // namespace host
