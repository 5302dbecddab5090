#pragma once

#include "teskara/core/Types.h"

#include <algorithm>
#include <chrono>
#include <cstddef>

namespace host {

// What a call of scripts may take. Calls inside it, such as an event that a script causes, take of the same.
struct ScriptLimits {
    u64 Instructions = 10'000'000;
    std::chrono::milliseconds Time{2000}; // for what takes long in few instructions
    std::size_t CallBytes = 16 * 1024 * 1024; // more than there was before the call
    std::size_t AllBytes = 64 * 1024 * 1024; // what scripts may keep between calls
    std::size_t SourceBytes = 64 * 1024; // of a script; compiling some takes time by the square of their length
    std::size_t TextBytes = 64 * 1024; // of a text that is handed to the toolkit
};

// Counts what scripts take, and says when it is too much.
class ScriptBudget
{
public:
    explicit ScriptBudget(const ScriptLimits& limits) : m_Limits(limits), m_FullBytes(limits.AllBytes) { }

    // A new frame. All calls in it together have limits as well, behind which each may take only little.
    void BeginFrame();
    u32 Frame() const { return m_Frame; }

    // Calls may lie inside each other; the outermost begins anew. True: the outermost has ended.
    void Begin();
    bool End();
    bool IsOutermost() const { return m_Depth == 1; }

    // Scripts keep more than they may. They have room if it is clearly less.
    bool IsFull() const { return m_Bytes > m_FullBytes; }
    bool HasRoom() const { return m_Bytes < m_Limits.AllBytes / 4 * 3; }

    // Nothing more can be freed: they are full when they keep clearly more than now.
    void AcceptBytes() { m_FullBytes = std::max(m_Limits.AllBytes, m_Bytes + m_Limits.AllBytes / 4); }

    // Counts instructions. Null, or why the script has to stop; from then on, until the outermost call ends.
    const char* Spend(u64 instructions);

    // The same for work that is done outside of them, in steps that take about as long. Cheap for few.
    const char* SpendSteps(u64 steps);

    const ScriptLimits& Limits() const { return m_Limits; }

    // Memory ran out.
    void RunOutOfMemory();

    // Why the outermost call has to stop; null if it goes on.
    const char* WhySpent() const { return m_WhySpent; }

    // A person has to be told of it once, however many scripts end by it. True: that has not happened yet.
    bool TakeNews();

    // Memory that scripts take outside of Lua. False: it would be too much.
    bool TakeBytes(std::size_t bytes);
    void GiveBytes(std::size_t bytes) { m_Bytes -= bytes; }
    std::size_t Bytes() const { return m_Bytes; }

    // Memory by the rules of realloc; size 0 frees. Null: it would be too much.
    void* Reallocate(void* block, std::size_t oldSize, std::size_t size);

private:
    bool HasRoomFor(std::size_t bytes) const;

    ScriptLimits m_Limits;
    u32 m_Depth = 0;
    u32 m_Frame = 0; // 0: frames don't count
    bool m_IsLate = false; // the frame's limits are spent
    u64 m_FrameInstructions = 0;
    std::chrono::steady_clock::duration m_FrameTime{};
    u64 m_Instructions = 0;
    u64 m_Steps = 0; // not yet among the instructions
    std::chrono::steady_clock::time_point m_Start;
    std::size_t m_Bytes = 0;
    std::size_t m_MostBytes = 0; // in this call
    std::size_t m_FullBytes;
    const char* m_WhySpent = nullptr;
    bool m_IsTold = false;
};

} // namespace host
