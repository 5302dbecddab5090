#pragma once

#include "host/Console.h"
#include "teskara/core/Types.h"

#include <deque>
#include <string>

class TeskConsole;

namespace host {

// The consoles that stand in the interface. Lines go to the selected one, or to the main one if there is no such
// console. The latest lines of the main one are kept, and stand there also when it is opened only later, or again.
class OverlayConsole
{
public:
    // The full name of the main console.
    static constexpr char MainName[] = "output@Console";

    // Lines that are kept.
    static constexpr std::size_t MostKept = 500;

    // name: an element's full name; empty for the main console.
    void Select(const std::string& name) { m_Selected = name; }
    const std::string& Selected() const { return m_Selected; }

    // The line may hold colour codes. What weighs more than others has a colour of its own.
    void Print(const std::string& line, LineWeight weight);

    // Shows the kept lines, if there is a main console that has not shown them.
    void ShowKept();

private:
    struct Line {
        std::string Text;
        LineWeight Weight;
    };

    static TeskConsole* Find(const char* name);
    static void PrintIn(TeskConsole& console, const Line& line);

    std::string m_Selected;
    std::deque<Line> m_Kept;
    u32 m_MainID = 0; // of the console that has shown them
};

} // namespace host
