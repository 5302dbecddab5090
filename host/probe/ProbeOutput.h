#pragma once

#include "host/probe/HostOperation.h"

#include <bitset>
#include <string>
#include <string_view>
#include <vector>

// What a command says: the traced host calls and the results, one a line, in the order in which they came.
class ProbeOutput
{
public:
    // The folder of the run is left out wherever a path in it is shown.
    void HideFolder(const std::string& folder) { m_Folder = folder; }

    void Line(std::string_view line);
    void Result(std::string_view result);
    void Error(std::string_view message);

    // Keeps the next place for a line that is known only later.
    std::size_t Reserve();
    void Fill(std::size_t place, std::string_view line);

    // Everything said so far, and forgets it.
    std::vector<std::string> Take();

    bool Traces(TraceGroup group) const { return m_Traced[static_cast<std::size_t>(group)]; }
    void TraceNone() { m_Traced.reset(); }
    void TraceAll() { m_Traced.set(); }
    void Trace(TraceGroup group) { m_Traced.set(static_cast<std::size_t>(group)); }

private:
    std::string WithoutFolder(std::string_view line) const;

    std::string m_Folder;
    std::vector<std::string> m_Lines;
    std::bitset<static_cast<std::size_t>(TraceGroup::Count)> m_Traced{1u << static_cast<unsigned>(TraceGroup::Print)};
};

// The host operations that fail until they are allowed again.
class HostRefusals
{
public:
    void Refuse(HostOperation operation) { m_Refused.set(static_cast<std::size_t>(operation)); }
    void Allow(HostOperation operation) { m_Refused.reset(static_cast<std::size_t>(operation)); }
    bool Refuses(HostOperation operation) const { return m_Refused[static_cast<std::size_t>(operation)]; }

private:
    std::bitset<static_cast<std::size_t>(HostOperation::Count)> m_Refused;
};

// The line of one host call. It takes its place at once, so that what runs inside the call stands behind it, and is
// written at the end of the call.
class TracedCall
{
public:
    TracedCall(ProbeOutput& output, HostOperation operation);
    ~TracedCall();
    TracedCall(const TracedCall&) = delete;
    TracedCall& operator=(const TracedCall&) = delete;

    bool IsTraced() const { return m_Traced; }

    TracedCall& Argument(std::string_view text);
    TracedCall& Text(const char* text);
    TracedCall& Number(i64 number);
    TracedCall& Id(const char* kind, u32 id);

    void Returns(std::string_view result);
    void ReturnsText(const char* text);
    void ReturnsBool(bool result);
    void ReturnsId(const char* kind, u32 id);

private:
    ProbeOutput& m_Output;
    HostOperation m_Operation;
    bool m_Traced;
    std::size_t m_Place = 0;
    std::string m_Arguments;
    std::string m_Result;
};
