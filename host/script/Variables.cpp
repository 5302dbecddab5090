#include "host/script/Variables.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace host {

namespace {

constexpr std::size_t LongestValue = 64;
constexpr const char* UnknownValue = "NULL";
constexpr const char* Version = "0.1.0";

using ValueText = char[LongestValue];

struct VariableRow {
    std::string_view Name;
    void (*Write)(const FrameState& state, ValueText& text);
};

template <typename Number> void WriteNumber(ValueText& text, Number number)
{
    std::snprintf(text, sizeof text, "%lld", static_cast<long long>(number));
}

constexpr VariableRow Rows[] = {
    {"Date",
        [](const FrameState& state, ValueText& text) {
            std::snprintf(text, sizeof text, "%04d-%02d-%02d", state.Time.tm_year + 1900, state.Time.tm_mon + 1,
                state.Time.tm_mday);
        }},
    {"Display.Height", [](const FrameState& state, ValueText& text) { WriteNumber(text, state.Height); }},
    {"Display.Width", [](const FrameState& state, ValueText& text) { WriteNumber(text, state.Width); }},
    {"FPS", [](const FrameState& state, ValueText& text) { WriteNumber(text, state.FramesPerSecond); }},
    {"Frame", [](const FrameState& state, ValueText& text) { WriteNumber(text, state.Number); }},
    {"Mouse.X", [](const FrameState& state, ValueText& text) { WriteNumber(text, state.Mouse.x); }},
    {"Mouse.Y", [](const FrameState& state, ValueText& text) { WriteNumber(text, state.Mouse.y); }},
    {"Teskara.Version", [](const FrameState&, ValueText& text) { std::snprintf(text, sizeof text, "%s", Version); }},
    {"Time",
        [](const FrameState& state, ValueText& text) {
            std::snprintf(
                text, sizeof text, "%02d:%02d:%02d", state.Time.tm_hour, state.Time.tm_min, state.Time.tm_sec);
        }},
};

} // namespace

Variables::Variables(const FrameState& state) : m_State(state) { }

std::size_t Variables::Write(std::string_view name, char* output, std::size_t size) const
{
    ValueText text;
    std::snprintf(text, sizeof text, "%s", UnknownValue);
    for (const VariableRow& row : Rows)
        if (row.Name == name)
            row.Write(m_State, text);

    const std::size_t length = std::min(std::strlen(text), size);
    std::memcpy(output, text, length);
    return length;
}

} // namespace host
