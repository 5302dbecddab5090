// A sequence of what keys, the mouse, the clipboard and scripts do to an element that holds text. A plain model does the
// same, and both must agree after every step. The first byte of all chooses the element; each step is a byte and what
// the step reads after it.

#include "host/probe/TreeChecker.h"
#include "tests/fuzz/ConsoleSteps.h"
#include "tests/fuzz/EditSteps.h"
#include "tests/fuzz/EntrySteps.h"
#include "tests/fuzz/HistorySteps.h"
#include "tests/fuzz/ModelCheck.h"
#include "tests/fuzz/TextHost.h"

#include <iterator>

namespace {

// Inputs name scenes by their places here, so new ones go to the end.
constexpr ModelScene Scenes[] = {
    {"entry", RunEntrySteps},
    {"edit", RunEditSteps},
    {"plain console", RunConsoleSteps},
    {"bordered console", RunBorderedConsoleSteps},
    {"endless console", RunEndlessConsoleSteps},
    {"history", RunHistorySteps},
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const u8* data, std::size_t size)
{
    TextHost& host = StartedTextHost();
    Decisions bytes;
    bytes.Take(data, size);
    host.StartAnew();
    Scenes[bytes.Next() % std::size(Scenes)].Run(bytes);
    Require(!FindTreeFault(), "the tree is broken");

    g_UIManager.Reset();
    Require(host.Books.Imbalance().empty(), "the host is owed something");
    return 0;
}
