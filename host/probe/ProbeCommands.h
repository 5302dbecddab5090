#pragma once

#include "host/probe/CommandCall.h"

#include <span>
#include <string_view>

class ProbeSession;

constexpr u8 AnyNumber = 255;

// One command of transcripts: how many arguments it takes, and what it does.
struct ProbeCommand {
    const char* Name;
    const char* Usage; // the arguments
    u8 Least;
    u8 Most;
    CommandForm Form;
    void (*Run)(ProbeSession& session, const CommandCall& call);
};

// Null if there is no such command.
const ProbeCommand* FindProbeCommand(std::string_view name);

// The commands by topic, each list in a file of its own.
std::span<const ProbeCommand> SetUpCommands();
std::span<const ProbeCommand> HostAnswerCommands();
std::span<const ProbeCommand> LifeCommands();
std::span<const ProbeCommand> ElementCommands();
std::span<const ProbeCommand> DrawingCommands();
std::span<const ProbeCommand> MarkupCommands();
std::span<const ProbeCommand> InputCommands();
std::span<const ProbeCommand> ScriptCommands();
std::span<const ProbeCommand> MenuCommands();
std::span<const ProbeCommand> IndexCommands();
std::span<const ProbeCommand> MapCommands();
