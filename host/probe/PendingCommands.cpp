// The commands whose controls the toolkit does not have yet. A command moves out of this list when its control comes.

#include "host/probe/ProbeCommands.h"

namespace {

void NotYet(ProbeSession&, const CommandCall& call)
{
    throw CommandError(call.Name() + ": the toolkit does not have this yet");
}

constexpr ProbeCommand Commands[] = {
    {"blip", "MAP add|update|label|size|remove|clear ...", 0, AnyNumber, CommandForm::Words, NotYet},
    {"index", "NAME TYPE [SUBTYPE]", 0, AnyNumber, CommandForm::Words, NotYet},
    {"index-add", "NAME VALUE...", 0, AnyNumber, CommandForm::Words, NotYet},
    {"index-set", "NAME POSITION VALUE...", 0, AnyNumber, CommandForm::Words, NotYet},
    {"index-remove", "NAME POSITION", 0, AnyNumber, CommandForm::Words, NotYet},
    {"index-swap", "NAME A B", 0, AnyNumber, CommandForm::Words, NotYet},
    {"index-move", "NAME FROM TO", 0, AnyNumber, CommandForm::Words, NotYet},
    {"index-resize", "NAME SIZE", 0, AnyNumber, CommandForm::Words, NotYet},
    {"index-clear", "NAME", 0, AnyNumber, CommandForm::Words, NotYet},
    {"index-collapse", "NAME", 0, AnyNumber, CommandForm::Words, NotYet},
    {"index-lock", "NAME on|off", 0, AnyNumber, CommandForm::Words, NotYet},
    {"index-delete", "NAME", 0, AnyNumber, CommandForm::Words, NotYet},
    {"index-walk", "NAME", 0, AnyNumber, CommandForm::Words, NotYet},
};

} // namespace

std::span<const ProbeCommand> PendingCommands()
{
    return Commands;
}
