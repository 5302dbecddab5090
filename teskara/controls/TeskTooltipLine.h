#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/utf8string.h"

#include <string_view>

// One line of a tooltip.
class TESKARA_EXPORT TeskTooltipLine
{
public:
    // Null is the empty text, here and in Set.
    explicit TeskTooltipLine(const char* text);
    explicit TeskTooltipLine(std::string_view text);

    // The text to show, with its data sequences evaluated, and then good until the next call for any line. Never null.
    // May run scripts, which may end the line.
    const char* Parse() const;

    // Changes nothing if memory ran out.
    void Set(const char* text);

    utf8string Text;
    bool HasData = false; // Text has data sequences
};
