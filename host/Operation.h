#pragma once

#include "teskara/core/Types.h"

namespace host {

// Every operation that crosses the boundary between toolkit and host. The numbers stand in recordings: a new operation
// comes last, and whatever else changes here makes a new version of the format (RecordingFormat.h).
enum class Operation : u8 {
    // What the toolkit asks of the host
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

    GetScriptName,
    IsInsideAtom,
    GetUserInput,
    SetUserInput,

    GetTickCount,
    IsKeyToggled,
    ToAscii,
    AnsiToWide,
    OpenFile,
    FileExists,
    GetModulePath,
    WriteDebugOutput,
    RangeFailure,
    OpenSystemClipboard,
    CloseSystemClipboard,
    EmptySystemClipboard,
    SetClipboardText,
    GetClipboardText,

    // What the host asks of the toolkit
    Initialize,
    Reset,
    Shutdown,
    Render,
    SetFrameTick,
    LoadInterface,
    OnMouseMove,
    OnLMouseDown,
    OnLMouseUp,
    OnRMouseDown,
    OnRMouseUp,
    OnMouseWheel,
    OnKeyDown,
    OnKeyUp,
    ShowElement,
    RaiseElement,
    FocusElement,
    AddToHistory,
    MeasureConsole,
    PrintInConsole,
    MoveBlip,
    ViewBlip,
    RunCommand,
    AskTopLevelObject,
    DispatchMember,
    DispatchMethod,
    GetIndex,
    ToText,
    EndScript,

    Count,
};

// Its name, as the boundary spells it.
const char* NameOf(Operation operation);

// How many of them, the first ones, stand in the host's three tables.
inline constexpr u32 TableOperations = static_cast<u32>(Operation::GetScriptName);

// How many, the first ones, the toolkit asks of the host.
inline constexpr u32 AskedOperations = static_cast<u32>(Operation::Initialize);

// Whether the host asks the toolkit for it; else the toolkit asks the host.
inline bool EntersToolkit(Operation operation)
{
    return operation >= Operation::Initialize;
}

} // namespace host
