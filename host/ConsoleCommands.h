#pragma once

namespace host {

class CommandTable;
class Console;

// Adds the commands that a console needs for itself: echo and help. Both are borrowed.
void AddConsoleCommands(CommandTable& commands, Console& console);

} // namespace host
