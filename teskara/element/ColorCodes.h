#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <array>
#include <cstddef>

// Colour codes inside a text: a mark, and then "r" and its like for a named colour, "-r" for its dark form, "#rrggbb" for
// any colour, or "x" for the colour before. What is cut off by the end of the text counts as not there.
namespace ColorCodes {

constexpr char Mark = '\a';

// The place behind a code, without a look at what it means. place: of the mark.
TESKARA_EXPORT const char* Skip(const char* place);

// The colours to go back to.
class TESKARA_EXPORT Stack
{
public:
    // Carries out the code that a piece of text starts with, the mark itself left out, and returns the place behind it.
    // Letters that are no code change nothing and are part of the text.
    const char* Apply(const char* piece, u32& color);

private:
    static constexpr std::size_t Capacity = 128;

    void Push(u32 color);
    void Pop(u32& color);

    std::array<u32, Capacity> m_Colors;
    std::size_t m_Count = 0;
};

} // namespace ColorCodes
