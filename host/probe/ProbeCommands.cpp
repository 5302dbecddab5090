#include "host/probe/ProbeCommands.h"

#include <map>
#include <string>

namespace {

std::map<std::string_view, const ProbeCommand*> CollectCommands()
{
    std::map<std::string_view, const ProbeCommand*> commands;
    for (const auto list : {SetUpCommands(), HostAnswerCommands(), LifeCommands(), ElementCommands(), DrawingCommands(),
             MarkupCommands(), InputCommands(), ScriptCommands(), MenuCommands(), MapCommands(), IndexCommands()}) {
        for (const ProbeCommand& command : list)
            commands.emplace(command.Name, &command);
    }
    return commands;
}

} // namespace

const ProbeCommand* FindProbeCommand(std::string_view name)
{
    static const auto commands = CollectCommands();
    const auto found = commands.find(name);
    return found != commands.end() ? found->second : nullptr;
}
