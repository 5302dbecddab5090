// The commands whose controls the toolkit does not have yet. A command moves out of this list when its control comes.

#include "host/probe/ProbeCommands.h"

namespace {

void NotYet(ProbeSession&, const CommandCall& call)
{
    throw CommandError(call.Name() + ": the toolkit does not have this yet");
}

constexpr ProbeCommand Commands[] = {
    {"blip", "MAP add|update|label|size|remove|clear ...", 0, AnyNumber, CommandForm::Words, NotYet},
};

} // namespace

std::span<const ProbeCommand> PendingCommands()
{
    return Commands;
}
