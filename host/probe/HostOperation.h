#pragma once

#include "host/Operation.h"

#include <optional>
#include <string_view>

// Which host calls are printed together.
enum class TraceGroup : u8 {
    Print,
    Draw,
    Resources,
    Measure,
    Script,
    Sequences,
    Commands,
    Types,
    Files,
    Positions,
    Console,
    Clipboard,
    Keys,
    Queries,
    Misc,
    Count,
};

using HostOperation = host::Operation;

// Of those that a transcript can tell of and have refused: all of the host's tables, and the platform's clipboard.
TraceGroup OperationGroup(HostOperation operation);

// Nothing if there is no such operation or group. Names of operations are exact, words of groups are lower case.
std::optional<HostOperation> FindOperation(std::string_view name);
std::optional<TraceGroup> FindTraceGroup(std::string_view word);
