#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <cstddef>
#include <string_view>

// Breaks a text into lines of at most so many bytes, each byte a column: at a line feed, at the last space of a line
// that is full, or else right there. The byte that a line is broken at is dropped if it is a line feed or a space.
//
//     LineWrap lines(text, 80);
//     for (std::string_view line; lines.Next(line);)
//         ...
class TESKARA_EXPORT LineWrap
{
public:
    // A line that reaches so many bytes is the last one; what follows it is dropped.
    static constexpr std::size_t LongestLine = 2047;

    // The text is borrowed. Without columns it has no lines.
    LineWrap(std::string_view text, u64 columns) : m_Rest(columns == 0 ? std::string_view() : text), m_Columns(columns)
    {
    }

    // False: there are no more. A line feed at the end is followed by no further line.
    bool Next(std::string_view& line);

private:
    std::string_view Take(std::size_t length, std::size_t dropped);

    std::string_view m_Rest;
    u64 m_Columns;
};
