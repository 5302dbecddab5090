#pragma once

#include "teskara/core/Types.h"

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

// The operations that a host offers, in table order, and last the platform's clipboard, which can be refused like them.
enum class HostOperation : u8 {
    GetCurrentScript,
    AddCommand,
    RemoveCommand,
    ExecuteCommand,
    DataParse,
    AddTopLevelObject,
    RemoveTopLevelObject,
    AddType,
    RemoveType,
    FindType,
    InvalidateTransientObject,
    RegisterTransientClass,
    CompleteCommandLine,
    Calculate,
    PrintLine,
    GetScriptInterface,
    CompileAtom,
    ReleaseAtom,
    ExecuteAtomForText,
    ExecuteAtom,
    FindAtom,
    PreParseSequence,
    RetrieveOriginalText,
    RetrieveProcessedText,
    RetrieveProcessedResult,
    FreeSequence,
    RegisterObjectClass,
    InvalidateObject,
    SetTypeObjectClass,
    FindResourceFile,
    LocateFile,
    OpenClipboard,
    SaveElementPosition,
    LoadElementPosition,
    GetKeyName,
    GetOutputConsole,
    SetOutputConsole,
    DrawRect,
    DrawTexturedRect,
    DrawTexturedRects,
    DrawLine,
    CreateFontResource,
    ReleaseFontResource,
    DrawText,
    MeasureText,
    GetGlyphMetrics,
    GetDisplaySize,
    LoadTextureResource,
    GetTextureResourceSize,
    ReleaseTextureResource,
    ParseTypedValue,
    FindTypeByName,
    MakeTempBuffer,
    RegisterTransientClass2,
    InvalidateTransientObject2,
    CreateQuery,
    EvaluateQuery,
    FreeQuery,
    Clipboard,
    Count,
};

const char* OperationName(HostOperation operation);
TraceGroup OperationGroup(HostOperation operation);

// Nothing if there is no such operation or group. Names of operations are exact, words of groups are lower case.
std::optional<HostOperation> FindOperation(std::string_view name);
std::optional<TraceGroup> FindTraceGroup(std::string_view word);
