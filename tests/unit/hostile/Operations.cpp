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
    u32 Answers;
};

// clang-format off
constexpr OperationRow Rows[] = {
    {Operation::GetCurrentScript,           Pointer},
    {Operation::AddCommand,                 Nothing},
    {Operation::RemoveCommand,              Nothing},
    {Operation::ExecuteCommand,             Number},
    {Operation::DataParse,                  NumberAndText},
    {Operation::AddTopLevelObject,          Nothing},
    {Operation::RemoveTopLevelObject,       Nothing},
    {Operation::AddType,                    Nothing},
    {Operation::RemoveType,                 Nothing},
    {Operation::FindType,                   Pointer},
    {Operation::InvalidateTransientObject,  Nothing},
    {Operation::RegisterTransientClass,     Number},
    {Operation::CompleteCommandLine,        TextPointer},
    {Operation::Calculate,                  Real},
    {Operation::PrintLine,                  Nothing},
    {Operation::GetScriptInterface,         Pointer},
    {Operation::CompileAtom,                Number},
    {Operation::ReleaseAtom,                Nothing},
    {Operation::ExecuteAtomForText,         NumberAndText},
    {Operation::ExecuteAtom,                Number},
    {Operation::FindAtom,                   Number},
    {Operation::PreParseSequence,           Number},
    {Operation::RetrieveOriginalText,       Text},
    {Operation::RetrieveProcessedText,      Text},
    {Operation::RetrieveProcessedResult,    Value},
    {Operation::FreeSequence,               Nothing},
    {Operation::RegisterObjectClass,        Number},
    {Operation::InvalidateObject,           Nothing},
    {Operation::SetTypeObjectClass,         Nothing},
    {Operation::FindResourceFile,           Text},
    {Operation::LocateFile,                 Text},
    {Operation::OpenClipboard,              Decision},
    {Operation::SaveElementPosition,        Nothing},
    {Operation::LoadElementPosition,        Number | Bit(Answer::Empty)},
    {Operation::GetKeyName,                 Text},
    {Operation::GetOutputConsole,           Text},
    {Operation::SetOutputConsole,           Nothing},
    {Operation::DrawRect,                   Nothing},
    {Operation::DrawTexturedRect,           Decision},
    {Operation::DrawTexturedRects,          Decision},
    {Operation::DrawLine,                   Decision},
    {Operation::CreateFontResource,         Number},
    {Operation::ReleaseFontResource,        Nothing},
    {Operation::DrawText,                   Number},
    {Operation::MeasureText,                Measure},
    {Operation::GetGlyphMetrics,            Real},
    {Operation::GetDisplaySize,             Measure},
    {Operation::LoadTextureResource,        Number},
    {Operation::GetTextureResourceSize,     Measure},
    {Operation::ReleaseTextureResource,     Nothing},
    {Operation::ParseTypedValue,            Value},
    {Operation::FindTypeByName,             Pointer},
    {Operation::MakeTempBuffer,             Pointer},
    {Operation::RegisterTransientClass2,    Number},
    {Operation::InvalidateTransientObject2, Nothing},
    {Operation::CreateQuery,                Number},
    {Operation::EvaluateQuery,              Decision | Bit(Answer::Null)},
    {Operation::FreeQuery,                  Nothing},
    {Operation::GetScriptName,              TextPointer},
    {Operation::IsInsideAtom,               Decision},
    {Operation::GetUserInput,               TextPointer},
    {Operation::SetUserInput,               Nothing},
    {Operation::GetTickCount,               Number},
    {Operation::IsKeyToggled,               Decision},
    {Operation::ToAscii,                    NumberAndText},
    {Operation::AnsiToWide,                 Letter},
    {Operation::OpenFile,                   File},
    {Operation::FileExists,                 Decision},
    {Operation::GetModulePath,              TextPointer},
    {Operation::WriteDebugOutput,           Nothing},
    {Operation::RangeFailure,               Nothing},
    {Operation::OpenSystemClipboard,        Decision},
    {Operation::CloseSystemClipboard,       Nothing},
    {Operation::EmptySystemClipboard,       Decision},
    {Operation::SetClipboardText,           Decision},
    {Operation::GetClipboardText,           Text},
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
static_assert(host::TableOperations == 58);

} // namespace

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
