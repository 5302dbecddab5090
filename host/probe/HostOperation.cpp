#include "host/probe/HostOperation.h"

#include <array>

namespace {

struct OperationRow {
    HostOperation Operation;
    TraceGroup Group;
};

using enum host::Operation;

constexpr OperationRow Operations[] = {
    {GetCurrentScript, TraceGroup::Misc},
    {AddCommand, TraceGroup::Commands},
    {RemoveCommand, TraceGroup::Commands},
    {ExecuteCommand, TraceGroup::Commands},
    {DataParse, TraceGroup::Sequences},
    {AddTopLevelObject, TraceGroup::Types},
    {RemoveTopLevelObject, TraceGroup::Types},
    {AddType, TraceGroup::Types},
    {RemoveType, TraceGroup::Types},
    {FindType, TraceGroup::Types},
    {InvalidateTransientObject, TraceGroup::Types},
    {RegisterTransientClass, TraceGroup::Types},
    {CompleteCommandLine, TraceGroup::Commands},
    {Calculate, TraceGroup::Sequences},
    {PrintLine, TraceGroup::Print},
    {GetScriptInterface, TraceGroup::Types},
    {CompileAtom, TraceGroup::Script},
    {ReleaseAtom, TraceGroup::Script},
    {ExecuteAtomForText, TraceGroup::Script},
    {ExecuteAtom, TraceGroup::Script},
    {FindAtom, TraceGroup::Script},
    {PreParseSequence, TraceGroup::Sequences},
    {RetrieveOriginalText, TraceGroup::Sequences},
    {RetrieveProcessedText, TraceGroup::Sequences},
    {RetrieveProcessedResult, TraceGroup::Sequences},
    {FreeSequence, TraceGroup::Sequences},
    {RegisterObjectClass, TraceGroup::Types},
    {InvalidateObject, TraceGroup::Script},
    {SetTypeObjectClass, TraceGroup::Types},
    {FindResourceFile, TraceGroup::Files},
    {LocateFile, TraceGroup::Files},
    {OpenClipboard, TraceGroup::Clipboard},
    {SaveElementPosition, TraceGroup::Positions},
    {LoadElementPosition, TraceGroup::Positions},
    {GetKeyName, TraceGroup::Keys},
    {GetOutputConsole, TraceGroup::Console},
    {SetOutputConsole, TraceGroup::Console},
    {DrawRect, TraceGroup::Draw},
    {DrawTexturedRect, TraceGroup::Draw},
    {DrawTexturedRects, TraceGroup::Draw},
    {DrawLine, TraceGroup::Draw},
    {CreateFontResource, TraceGroup::Resources},
    {ReleaseFontResource, TraceGroup::Resources},
    {DrawText, TraceGroup::Draw},
    {MeasureText, TraceGroup::Measure},
    {GetGlyphMetrics, TraceGroup::Measure},
    {GetDisplaySize, TraceGroup::Measure},
    {LoadTextureResource, TraceGroup::Resources},
    {GetTextureResourceSize, TraceGroup::Resources},
    {ReleaseTextureResource, TraceGroup::Resources},
    {ParseTypedValue, TraceGroup::Queries},
    {FindTypeByName, TraceGroup::Queries},
    {MakeTempBuffer, TraceGroup::Misc},
    {RegisterTransientClass2, TraceGroup::Types},
    {InvalidateTransientObject2, TraceGroup::Types},
    {CreateQuery, TraceGroup::Queries},
    {EvaluateQuery, TraceGroup::Queries},
    {FreeQuery, TraceGroup::Queries},
};

constexpr bool RowsStandInOrder()
{
    for (std::size_t index = 0; index < std::size(Operations); ++index) {
        if (static_cast<std::size_t>(Operations[index].Operation) != index)
            return false;
    }
    return std::size(Operations) == host::TableOperations;
}
static_assert(RowsStandInOrder());

// The word for the platform's, which can be refused like an operation of the host.
constexpr std::string_view SystemClipboard = "Clipboard";

constexpr std::array<std::string_view, static_cast<std::size_t>(TraceGroup::Count)> GroupWords = {"print", "draw",
    "resources", "measure", "script", "sequences", "commands", "types", "files", "positions", "console", "clipboard",
    "keys", "queries", "misc"};

} // namespace

TraceGroup OperationGroup(HostOperation operation)
{
    return operation == OpenSystemClipboard ? TraceGroup::Clipboard
                                            : Operations[static_cast<std::size_t>(operation)].Group;
}

std::optional<HostOperation> FindOperation(std::string_view name)
{
    if (name == SystemClipboard)
        return OpenSystemClipboard;
    for (const OperationRow& row : Operations) {
        if (NameOf(row.Operation) == name)
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
