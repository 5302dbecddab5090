#include "tests/unit/hostile/Operations.h"

namespace {

constexpr u32 Bit(Answer answer)
{
    return u32{1} << static_cast<u32>(answer);
}

// What each operation can do, whatever it answers.
constexpr u32 Acts = Bit(Answer::Throws) | Bit(Answer::Asks) | Bit(Answer::Draws) | Bit(Answer::SendsInput)
    | Bit(Answer::LoadsAFile) | Bit(Answer::ShutsDown) | Bit(Answer::DeletesMouseOver) | Bit(Answer::DeletesFocus)
    | Bit(Answer::DeletesInTurn) | Bit(Answer::DeletesAll);

// By what an operation gives back.
constexpr u32 Nothing = Acts | Bit(Answer::Fails);
constexpr u32 Decision = Nothing;
constexpr u32 Pointer = Acts | Bit(Answer::Null);
constexpr u32 Number = Nothing | Bit(Answer::Huge) | Bit(Answer::Negative);
constexpr u32 Measure = Number | Bit(Answer::Null) | Bit(Answer::Empty);
constexpr u32 Real = Measure | Bit(Answer::NotANumber);
constexpr u32 Text = Nothing | Bit(Answer::Null) | Bit(Answer::Empty) | Bit(Answer::Unterminated) | Bit(Answer::Huge);
constexpr u32 NumberAndText = Text | Number;
constexpr u32 TextPointer = Acts | Bit(Answer::Null) | Bit(Answer::Empty) | Bit(Answer::Huge);
constexpr u32 Value = Real;
constexpr u32 Letter = Nothing | Bit(Answer::Unterminated) | Bit(Answer::Huge);
constexpr u32 File = TextPointer | Bit(Answer::Unterminated);

struct OperationRow {
    Operation Is;
    const char* Name;
    u32 Answers;
};

// clang-format off
constexpr OperationRow Rows[] = {
    {Operation::ParseTypedValue,            "ParseTypedValue",            Value},
    {Operation::FindTypeByName,             "FindTypeByName",             Pointer},
    {Operation::MakeTempBuffer,             "MakeTempBuffer",             Pointer},
    {Operation::RegisterTransientClass2,    "RegisterTransientClass2",    Number},
    {Operation::InvalidateTransientObject2, "InvalidateTransientObject2", Nothing},
    {Operation::CreateQuery,                "CreateQuery",                Number},
    {Operation::EvaluateQuery,              "EvaluateQuery",              Decision | Bit(Answer::Null)},
    {Operation::FreeQuery,                  "FreeQuery",                  Nothing},
    {Operation::GetCurrentScript,           "GetCurrentScript",           Pointer},
    {Operation::AddCommand,                 "AddCommand",                 Nothing},
    {Operation::RemoveCommand,              "RemoveCommand",              Nothing},
    {Operation::ExecuteCommand,             "ExecuteCommand",             Number},
    {Operation::DataParse,                  "DataParse",                  NumberAndText},
    {Operation::AddTopLevelObject,          "AddTopLevelObject",          Nothing},
    {Operation::RemoveTopLevelObject,       "RemoveTopLevelObject",       Nothing},
    {Operation::AddType,                    "AddType",                    Nothing},
    {Operation::RemoveType,                 "RemoveType",                 Nothing},
    {Operation::FindType,                   "FindType",                   Pointer},
    {Operation::InvalidateTransientObject,  "InvalidateTransientObject",  Nothing},
    {Operation::RegisterTransientClass,     "RegisterTransientClass",     Number},
    {Operation::CompleteCommandLine,        "CompleteCommandLine",        TextPointer},
    {Operation::Calculate,                  "Calculate",                  Real},
    {Operation::PrintLine,                  "PrintLine",                  Nothing},
    {Operation::GetScriptInterface,         "GetScriptInterface",         Pointer},
    {Operation::CompileAtom,                "CompileAtom",                Number},
    {Operation::ReleaseAtom,                "ReleaseAtom",                Nothing},
    {Operation::ExecuteAtomForText,         "ExecuteAtomForText",         NumberAndText},
    {Operation::ExecuteAtom,                "ExecuteAtom",                Number},
    {Operation::FindAtom,                   "FindAtom",                   Number},
    {Operation::PreParseSequence,           "PreParseSequence",           Number},
    {Operation::RetrieveOriginalText,       "RetrieveOriginalText",       Text},
    {Operation::RetrieveProcessedText,      "RetrieveProcessedText",      Text},
    {Operation::RetrieveProcessedResult,    "RetrieveProcessedResult",    Value},
    {Operation::FreeSequence,               "FreeSequence",               Nothing},
    {Operation::RegisterObjectClass,        "RegisterObjectClass",        Number},
    {Operation::InvalidateObject,           "InvalidateObject",           Nothing},
    {Operation::SetTypeObjectClass,         "SetTypeObjectClass",         Nothing},
    {Operation::FindResourceFile,           "FindResourceFile",           Text},
    {Operation::LocateFile,                 "LocateFile",                 Text},
    {Operation::OpenClipboard,              "OpenClipboard",              Decision},
    {Operation::SaveElementPosition,        "SaveElementPosition",        Nothing},
    {Operation::LoadElementPosition,        "LoadElementPosition",        Number | Bit(Answer::Empty)},
    {Operation::GetKeyName,                 "GetKeyName",                 Text},
    {Operation::GetOutputConsole,           "GetOutputConsole",           Text},
    {Operation::SetOutputConsole,           "SetOutputConsole",           Nothing},
    {Operation::DrawRect,                   "DrawRect",                   Nothing},
    {Operation::DrawTexturedRect,           "DrawTexturedRect",           Decision},
    {Operation::DrawTexturedRects,          "DrawTexturedRects",          Decision},
    {Operation::DrawLine,                   "DrawLine",                   Decision},
    {Operation::CreateFontResource,         "CreateFontResource",         Number},
    {Operation::ReleaseFontResource,        "ReleaseFontResource",        Nothing},
    {Operation::DrawText,                   "DrawText",                   Number},
    {Operation::MeasureText,                "MeasureText",                Measure},
    {Operation::GetGlyphMetrics,            "GetGlyphMetrics",            Real},
    {Operation::GetDisplaySize,             "GetDisplaySize",             Measure},
    {Operation::LoadTextureResource,        "LoadTextureResource",        Number},
    {Operation::GetTextureResourceSize,     "GetTextureResourceSize",     Measure},
    {Operation::ReleaseTextureResource,     "ReleaseTextureResource",     Nothing},
    {Operation::GetName,                    "GetName",                    TextPointer},
    {Operation::IsInsideAtom,               "IsInsideAtom",               Decision},
    {Operation::GetUserInput,               "GetUserInput",               TextPointer},
    {Operation::SetUserInput,               "SetUserInput",               Nothing},
    {Operation::GetTickCount,               "GetTickCount",               Number},
    {Operation::IsKeyToggled,               "IsKeyToggled",               Decision},
    {Operation::ToAscii,                    "ToAscii",                    NumberAndText},
    {Operation::AnsiToWide,                 "AnsiToWide",                 Letter},
    {Operation::OpenFile,                   "OpenFile",                   File},
    {Operation::FileExists,                 "FileExists",                 Decision},
    {Operation::GetModulePath,              "GetModulePath",              TextPointer},
    {Operation::WriteDebugOutput,           "WriteDebugOutput",           Nothing},
    {Operation::RangeFailure,               "RangeFailure",               Nothing},
    {Operation::OpenPlatformClipboard,      "OpenClipboard of the platform", Decision},
    {Operation::CloseClipboard,             "CloseClipboard",             Nothing},
    {Operation::EmptyClipboard,             "EmptyClipboard",             Decision},
    {Operation::SetClipboardText,           "SetClipboardText",           Decision},
    {Operation::GetClipboardText,           "GetClipboardText",           Text},
};

constexpr const char* AnswerNames[] = {
    "does its work", "fails", "writes nothing", "answers nothing but the end", "fills the buffer without an end",
    "is huge", "is negative", "is not a number", "throws",
    "asks the toolkit", "draws a frame", "sends input", "loads a file", "shuts the toolkit down",
    "deletes what is under the mouse", "deletes what has the focus", "deletes one element after the other",
    "deletes everything",
};
// clang-format on

constexpr bool RowsStandInOrder()
{
    u32 place = 0;
    for (const OperationRow& row : Rows) {
        if (row.Is != static_cast<Operation>(place++))
            return false;
    }
    return place == OperationCount;
}
static_assert(RowsStandInOrder());
static_assert(std::size(AnswerNames) == static_cast<std::size_t>(Answer::Count));
static_assert(HostOperationCount == 58);

} // namespace

const char* NameOf(Operation operation)
{
    return Rows[static_cast<u32>(operation)].Name;
}

const char* NameOf(Answer answer)
{
    return AnswerNames[static_cast<u32>(answer)];
}

std::vector<Answer> AnswersOf(Operation operation)
{
    std::vector<Answer> answers;
    for (u32 number = 0; number < static_cast<u32>(Answer::Count); ++number) {
        const auto answer = static_cast<Answer>(number);
        if (Rows[static_cast<u32>(operation)].Answers & Bit(answer))
            answers.push_back(answer);
    }
    return answers;
}
