#pragma once

#include "teskara/core/Types.h"

#include <span>
#include <vector>

// Every operation that the toolkit asks of a program: of its three tables, of a running script, and of the platform.
enum class Operation : u32 {
    // HostScriptInterface
    ParseTypedValue,
    FindTypeByName,
    MakeTempBuffer,
    RegisterTransientClass2,
    InvalidateTransientObject2,
    CreateQuery,
    EvaluateQuery,
    FreeQuery,

    // HostInterface
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

    // HostDrawSink
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

    // HostScript
    GetName,
    IsInsideAtom,
    GetUserInput,
    SetUserInput,

    // Platform
    GetTickCount,
    IsKeyToggled,
    ToAscii,
    AnsiToWide,
    OpenFile,
    FileExists,
    GetModulePath,
    WriteDebugOutput,
    RangeFailure,
    OpenPlatformClipboard,
    CloseClipboard,
    EmptyClipboard,
    SetClipboardText,
    GetClipboardText,

    Count,
};

constexpr u32 OperationCount = static_cast<u32>(Operation::Count);
constexpr u32 HostOperationCount = static_cast<u32>(Operation::GetName); // those of the host's three tables

// What an operation may do instead of its work. Those from Asks on do something first, and then their work.
enum class Answer : u8 {
    Good,
    Fails, // a text or a value is filled with rubbish all the same
    Null, // claims to have done it, and wrote nothing
    Empty,
    Unterminated, // a text that fills its buffer and has no end, a file or a letter that breaks off
    Huge,
    Negative,
    NotANumber,
    Throws,

    // Calls back into the toolkit
    Asks,
    Draws,
    SendsInput,
    LoadsAFile,
    ShutsDown,

    // Deletes
    DeletesMouseOver,
    DeletesFocus,
    DeletesInTurn,
    DeletesAll,

    Count,
};

constexpr bool IsAct(Answer answer)
{
    return answer >= Answer::Asks;
}

constexpr bool IsDeletion(Answer answer)
{
    return answer >= Answer::DeletesMouseOver;
}

const char* NameOf(Operation operation);
const char* NameOf(Answer answer);

// The answers that mean something for an operation of that signature, but for the good one.
std::vector<Answer> AnswersOf(Operation operation);
