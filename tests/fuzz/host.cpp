// A sequence of what a host does, on elements that the first bytes choose, while its answers are those that the input
// chooses: failures, texts without an end, numbers at the ends of their range and others that are none, exceptions.

#include "tests/fuzz/AnswerHost.h"
#include "tests/fuzz/AnswerPlatform.h"
#include "tests/fuzz/EventSteps.h"

namespace {

AnswerHost* g_Host = nullptr;

// The answers that stand from the start, before the scene is loaded, are counted by the first byte; those of later steps
// come before each.
void TellAnswers(Decisions& bytes, u8 count)
{
    for (; count > 0 && !bytes.IsUsedUp(); --count) {
        const u8 call = bytes.Next() % static_cast<u8>(HostCall::Count);
        const u8 answer = bytes.Next();
        const u8 detail = bytes.Next();
        constexpr u8 kinds = static_cast<u8>(Answer::Count);
        g_Host->Told.Tell(static_cast<HostCall>(call), static_cast<Answer>(answer % kinds), detail, answer / kinds);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    g_Host = new AnswerHost; // which outlives the library's end, as does its platform
    StartOn(*g_Host, *new AnswerPlatform(g_Host->Quiet, g_Host->Told));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const u8* data, std::size_t size)
{
    Decisions bytes;
    bytes.Take(data, size);
    BeginEvents(bytes, [&] { TellAnswers(bytes, bytes.Next() % 8); });
    RunEventSteps(bytes, [&] { TellAnswers(bytes, bytes.Next() % 4 == 0 ? 1 : 0); });
    EndEvents();
    return 0;
}
