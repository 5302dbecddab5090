#pragma once

#include "teskara/core/Types.h"

#include <string>
#include <string_view>

namespace host {

// Lines and columns count from 1; columns are characters. A line of 0: the file as a whole.
struct SourcePlace {
    u32 Line = 0;
    u32 Column = 0;
};

// Something in a file that the toolkit is silent about.
struct Finding {
    std::string File;
    SourcePlace Place;
    std::string_view Rule; // its name
    std::string Message; // what is wrong
    std::string Meant; // what was probably meant; empty if nobody can tell
};

} // namespace host
