// A sequence of what a host does, on elements that the first bytes choose; the host's scripts do what the steps tell them
// beforehand, to whatever element.

#include "tests/fuzz/EventHost.h"
#include "tests/fuzz/EventSteps.h"

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    auto* host = new EventHost; // which outlives the library's end
    StartOn(*host, host->Quiet);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const u8* data, std::size_t size)
{
    Decisions bytes;
    bytes.Take(data, size);
    BeginEvents(bytes);
    RunEventSteps(bytes);
    EndEvents();
    return 0;
}
