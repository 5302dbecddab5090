#pragma once

#include "teskara/core/Types.h"

#include <string_view>

// A word that stands for a number in markup, in any case.
struct MarkupWord {
    std::string_view Word;
    u32 Value;
};
