#include "teskara/script/Commands.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/HostCalls.h"
#include "teskara/script/Arguments.h"
#include "teskara/script/InputBoxCommand.h"
#include "teskara/script/MessageBoxCommand.h"
#include "teskara/script/UICommand.h"
#include "teskara/script/UIElementCommand.h"

namespace {

// What the host calls. Nothing is thrown to it; a command that ran out of memory has failed.
template <int (*Run)(const Arguments&)> int Command(int argc, char** argv) noexcept
{
    if (Host::IsAnswering())
        return -1;

    try {
        return Run(Arguments(argc, argv));
    } catch (...) {
        return -1;
    }
}

struct CommandRow {
    const char* Name;
    CommandHandler Handler;
};

constexpr CommandRow Commands[] = {
    {"UI", Command<RunUICommand>},
    {"UIElement", Command<RunUIElementCommand>},
    {"MessageBox", Command<RunMessageBoxCommand>},
    {"InputBox", Command<RunInputBoxCommand>},
};

} // namespace

void RegisterCommands()
{
    for (const CommandRow& row : Commands) {
        if (!g_UIManager.ShuttingDown) // the host may shut the toolkit down in between
            Host::AddCommand(row.Name, row.Handler);
    }
}

void RemoveCommands()
{
    for (const CommandRow& row : Commands)
        Host::RemoveCommand(row.Name);
}

std::vector<const char*> CommandNames()
{
    std::vector<const char*> names;
    for (const CommandRow& row : Commands)
        names.push_back(row.Name);
    return names;
}
