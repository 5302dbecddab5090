#pragma once

#include "teskara/controls/TeskScrollBar.h"
#include "teskara/controls/TeskSlider.h"
#include "teskara/core/CUIManager.h"
#include "teskara/text/TeskConsole.h"
#include "tests/unit/ToolkitTest.h"

#include <string>
#include <vector>

// Tests of consoles: characters are 6 by 9, which makes rows of 10, and scroll bars are 16 wide.
class ConsoleTest : public ToolkitTest
{
protected:
    ConsoleTest()
    {
        g_UIManager.AddTemplate("bar",
            "<Template><Slider><Width>16</Width><Height>100%</Height><Vertical>1</Vertical></Slider></Template>");
    }

    static constexpr char Usual[] = "<ScrollBar>bar</ScrollBar>";

    // The console "C" at 100, 200, which is 10 rows of columns characters.
    TeskConsole& Place(u32 columns, const std::string& markup = Usual)
    {
        Load("<console name='C'><X>100</X><Y>200</Y><Width>" + std::to_string(columns * 6 + 16)
            + "</Width><Height>100</Height><Font><Size>9</Size><Color>ffffffff</Color></Font>" + markup + "</console>");
        Frame();
        return As<TeskConsole>("C");
    }

    // Prints the lines "0" to count - 1.
    static void PrintLines(TeskConsole& console, int count)
    {
        for (int line = 0; line < count; ++line)
            console.Printf("%d\n", line);
    }

    // The lines from the oldest to the newest.
    static std::vector<std::string> Lines(const TeskConsole& console)
    {
        std::vector<std::string> lines;
        const LineRing& ring = console.Lines;
        ring.VisitRows(ring.Newest(), ring.Size(), [&](i64, const char* line) { lines.emplace_back(line); });
        return lines;
    }

    using Strings = std::vector<std::string>;
};
