#pragma once

#include "host/FrameState.h"

#include <cstddef>
#include <string_view>

namespace host {

// The values that a text can show by name, such as Time or Display.Width.
class Variables
{
public:
    // The state is borrowed and read at each use.
    explicit Variables(const FrameState& state);

    // Writes a variable's text, at most size bytes without an end, and returns their number. An unknown one reads NULL.
    std::size_t Write(std::string_view name, char* output, std::size_t size) const;

private:
    const FrameState& m_State;
};

} // namespace host
