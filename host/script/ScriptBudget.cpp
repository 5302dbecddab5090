#include "host/script/ScriptBudget.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace host {

namespace {

// What all calls of a frame may take, and each one behind that.
constexpr u64 FrameInstructions = 50'000'000;
constexpr u64 LateInstructions = 100'000;
constexpr std::chrono::milliseconds FrameTime{1000};
constexpr std::chrono::milliseconds LateTime{20};

constexpr u64 StepsAtOnce = 256;
constexpr std::size_t LargeBlock = 4096;
constexpr std::size_t BytesOfStep = 64; // that are filled in the time of an instruction

} // namespace

void ScriptBudget::BeginFrame()
{
    ++m_Frame;
    m_IsLate = false;
    m_FrameInstructions = 0;
    m_FrameTime = {};
}

void ScriptBudget::Begin()
{
    if (m_Depth++ > 0)
        return;

    m_Instructions = 0;
    m_Steps = 0;
    m_MostBytes = std::min(m_Bytes, m_Limits.AllBytes) + m_Limits.CallBytes;
    m_WhySpent = nullptr;
    m_IsTold = false;
}

bool ScriptBudget::End()
{
    if (--m_Depth > 0)
        return false;

    if (m_Frame > 0 && m_Instructions > 0) {
        m_FrameInstructions += m_Instructions;
        m_FrameTime += std::chrono::steady_clock::now() - m_Start;
        m_IsLate = m_FrameInstructions > FrameInstructions || m_FrameTime > FrameTime;
    }
    return true;
}

const char* ScriptBudget::Spend(u64 instructions)
{
    if (m_WhySpent || m_Depth == 0)
        return m_WhySpent;

    // The clock is first asked for here: most calls are over before that.
    const auto now = std::chrono::steady_clock::now();
    if (m_Instructions == 0)
        m_Start = now;
    m_Instructions += instructions;
    if (m_Instructions > m_Limits.Instructions)
        m_WhySpent = "stopped, since it ran too many instructions";
    else if (now > m_Start + m_Limits.Time)
        m_WhySpent = "stopped, since it ran too long";
    else if (m_IsLate && (m_Instructions > LateInstructions || now > m_Start + LateTime))
        m_WhySpent = "stopped, since scripts ran too long in this frame";
    return m_WhySpent;
}

const char* ScriptBudget::SpendSteps(u64 steps)
{
    m_Steps += steps;
    if (m_Steps < StepsAtOnce)
        return m_WhySpent;
    return Spend(std::exchange(m_Steps, 0));
}

void ScriptBudget::RunOutOfMemory()
{
    if (!m_WhySpent)
        m_WhySpent = "stopped, since it took too much memory";
}

bool ScriptBudget::TakeNews()
{
    const bool isNews = !m_IsTold;
    m_IsTold = true;
    return isNews;
}

bool ScriptBudget::TakeBytes(std::size_t bytes)
{
    if (!HasRoomFor(bytes))
        return false;

    m_Bytes += bytes;
    return true;
}

bool ScriptBudget::HasRoomFor(std::size_t bytes) const
{
    const std::size_t most = m_Depth > 0 ? m_MostBytes : m_Limits.AllBytes + m_Limits.CallBytes;
    return m_Bytes <= most && bytes <= most - m_Bytes;
}

void* ScriptBudget::Reallocate(void* block, std::size_t oldSize, std::size_t size)
{
    if (!block)
        oldSize = 0; // it then says what the block is for
    if (size == 0) {
        std::free(block);
        m_Bytes -= oldSize;
        return nullptr;
    }

    if (size > oldSize && !HasRoomFor(size - oldSize))
        return nullptr;

    // Who makes large blocks fills them: that takes its time, in however few instructions.
    if (size > oldSize && size >= LargeBlock && SpendSteps(size / BytesOfStep))
        return nullptr;

    void* moved = std::realloc(block, size);
    if (!moved)
        return size > oldSize ? nullptr : block;

    m_Bytes += size - oldSize;
    return moved;
}

} // namespace host
