// A sequence of what scripts, hosts and the mouse do to an element that holds a collection, or to a container of values.
// A plain model does the same, and both must agree after every step. The first byte of all chooses what is tested; each
// step is a byte and what the step reads after it.

#include "host/probe/TreeChecker.h"
#include "tests/fuzz/EventHost.h"
#include "tests/fuzz/IndexSteps.h"
#include "tests/fuzz/ListSteps.h"
#include "tests/fuzz/MapSteps.h"
#include "tests/fuzz/ModelCheck.h"
#include "tests/fuzz/TabSteps.h"
#include "tests/fuzz/TableSteps.h"
#include "tests/fuzz/TreeSteps.h"

#include <iterator>

namespace {

// Inputs name scenes by their places here, so new ones go to the end.
constexpr ModelScene Scenes[] = {
    {"single list", RunSingleListSteps},
    {"multiple list", RunMultipleListSteps},
    {"combo", RunComboSteps},
    {"fixed tabs", RunFixedTabSteps},
    {"draggable tabs", RunDraggableTabSteps},
    {"tree", RunTreeSteps},
    {"table", RunTableSteps},
    {"index", RunIndexSteps},
    {"map", RunMapSteps},
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const u8* data, std::size_t size)
{
    auto& host = StartedHost<EventHost>();
    Decisions bytes;
    bytes.Take(data, size);
    host.StartAnew();
    Scenes[bytes.Next() % std::size(Scenes)].Run(bytes);
    Require(!FindTreeFault(), "the tree is broken");

    g_UIManager.Reset();
    Require(host.Books.Imbalance().empty(), "the host is owed something");
    return 0;
}
