#include "host/probe/HostOperation.h"

#include <array>

namespace {

struct OperationRow {
    HostOperation Operation;
    const char* Name;
    TraceGroup Group;
};

using enum HostOperation;

constexpr OperationRow Operations[] = {
    {GetCurrentScript, "GetCurrentScript", TraceGroup::Misc},
    {AddCommand, "AddCommand", TraceGroup::Commands},
    {RemoveCommand, "RemoveCommand", TraceGroup::Commands},
    {ExecuteCommand, "ExecuteCommand", TraceGroup::Commands},
    {DataParse, "DataParse", TraceGroup::Sequences},
    {AddTopLevelObject, "AddTopLevelObject", TraceGroup::Types},
    {RemoveTopLevelObject, "RemoveTopLevelObject", TraceGroup::Types},
    {AddType, "AddType", TraceGroup::Types},
    {RemoveType, "RemoveType", TraceGroup::Types},
    {FindType, "FindType", TraceGroup::Types},
    {InvalidateTransientObject, "InvalidateTransientObject", TraceGroup::Types},
    {RegisterTransientClass, "RegisterTransientClass", TraceGroup::Types},
    {CompleteCommandLine, "CompleteCommandLine", TraceGroup::Commands},
    {Calculate, "Calculate", TraceGroup::Sequences},
    {PrintLine, "PrintLine", TraceGroup::Print},
    {GetScriptInterface, "GetScriptInterface", TraceGroup::Types},
    {CompileAtom, "CompileAtom", TraceGroup::Script},
    {ReleaseAtom, "ReleaseAtom", TraceGroup::Script},
    {ExecuteAtomForText, "ExecuteAtomForText", TraceGroup::Script},
    {ExecuteAtom, "ExecuteAtom", TraceGroup::Script},
    {FindAtom, "FindAtom", TraceGroup::Script},
    {PreParseSequence, "PreParseSequence", TraceGroup::Sequences},
    {RetrieveOriginalText, "RetrieveOriginalText", TraceGroup::Sequences},
    {RetrieveProcessedText, "RetrieveProcessedText", TraceGroup::Sequences},
    {RetrieveProcessedResult, "RetrieveProcessedResult", TraceGroup::Sequences},
    {FreeSequence, "FreeSequence", TraceGroup::Sequences},
    {RegisterObjectClass, "RegisterObjectClass", TraceGroup::Types},
    {InvalidateObject, "InvalidateObject", TraceGroup::Script},
    {SetTypeObjectClass, "SetTypeObjectClass", TraceGroup::Types},
    {FindResourceFile, "FindResourceFile", TraceGroup::Files},
    {LocateFile, "LocateFile", TraceGroup::Files},
    {OpenClipboard, "OpenClipboard", TraceGroup::Clipboard},
    {SaveElementPosition, "SaveElementPosition", TraceGroup::Positions},
    {LoadElementPosition, "LoadElementPosition", TraceGroup::Positions},
    {GetKeyName, "GetKeyName", TraceGroup::Keys},
    {GetOutputConsole, "GetOutputConsole", TraceGroup::Console},
    {SetOutputConsole, "SetOutputConsole", TraceGroup::Console},
    {DrawRect, "DrawRect", TraceGroup::Draw},
    {DrawTexturedRect, "DrawTexturedRect", TraceGroup::Draw},
    {DrawTexturedRects, "DrawTexturedRects", TraceGroup::Draw},
    {DrawLine, "DrawLine", TraceGroup::Draw},
    {CreateFontResource, "CreateFontResource", TraceGroup::Resources},
    {ReleaseFontResource, "ReleaseFontResource", TraceGroup::Resources},
    {DrawText, "DrawText", TraceGroup::Draw},
    {MeasureText, "MeasureText", TraceGroup::Measure},
    {GetGlyphMetrics, "GetGlyphMetrics", TraceGroup::Measure},
    {GetDisplaySize, "GetDisplaySize", TraceGroup::Measure},
    {LoadTextureResource, "LoadTextureResource", TraceGroup::Resources},
    {GetTextureResourceSize, "GetTextureResourceSize", TraceGroup::Resources},
    {ReleaseTextureResource, "ReleaseTextureResource", TraceGroup::Resources},
    {ParseTypedValue, "ParseTypedValue", TraceGroup::Queries},
    {FindTypeByName, "FindTypeByName", TraceGroup::Queries},
    {MakeTempBuffer, "MakeTempBuffer", TraceGroup::Misc},
    {RegisterTransientClass2, "RegisterTransientClass2", TraceGroup::Types},
    {InvalidateTransientObject2, "InvalidateTransientObject2", TraceGroup::Types},
    {CreateQuery, "CreateQuery", TraceGroup::Queries},
    {EvaluateQuery, "EvaluateQuery", TraceGroup::Queries},
    {FreeQuery, "FreeQuery", TraceGroup::Queries},
    {Clipboard, "Clipboard", TraceGroup::Clipboard},
};

constexpr bool RowsStandInOrder()
{
    for (std::size_t index = 0; index < std::size(Operations); ++index) {
        if (static_cast<std::size_t>(Operations[index].Operation) != index)
            return false;
    }
    return std::size(Operations) == static_cast<std::size_t>(HostOperation::Count);
}
static_assert(RowsStandInOrder());

constexpr std::array<std::string_view, static_cast<std::size_t>(TraceGroup::Count)> GroupWords = {"print", "draw",
    "resources", "measure", "script", "sequences", "commands", "types", "files", "positions", "console", "clipboard",
    "keys", "queries", "misc"};

} // namespace

const char* OperationName(HostOperation operation)
{
    return Operations[static_cast<std::size_t>(operation)].Name;
}

TraceGroup OperationGroup(HostOperation operation)
{
    return Operations[static_cast<std::size_t>(operation)].Group;
}

std::optional<HostOperation> FindOperation(std::string_view name)
{
    for (const OperationRow& row : Operations) {
        if (row.Name == name)
            return row.Operation;
    }
    return std::nullopt;
}

std::optional<TraceGroup> FindTraceGroup(std::string_view word)
{
    for (std::size_t index = 0; index < GroupWords.size(); ++index) {
        if (GroupWords[index] == word)
            return static_cast<TraceGroup>(index);
    }
    return std::nullopt;
}
