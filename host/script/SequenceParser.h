#pragma once

#include "host/script/Sequence.h"

#include <string_view>

namespace host {

// Reads texts with parts of these forms:
//
//     ${Volume}  ${Mouse.X}  ${UIElement[Ok@Main].Width}  ${Volume:Set[0.5]}  ${= Volume * 100}
//
// Arguments are separated by commas; one in double quotes stands as it is, any other may have parts of its own. What
// has no end is text.
class SequenceParser
{
public:
    static Sequence Read(std::string_view text);

    // A path without the ${} around it. No steps: it is none.
    static std::vector<SequenceStep> ReadPath(std::string_view text);

    // The place behind the part that starts with ${ at a place; npos if nothing ends it.
    static std::size_t FindEnd(std::string_view text, std::size_t start);
};

} // namespace host
