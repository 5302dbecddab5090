#pragma once

#include "host/script/CallTrail.h"

#include <cstdarg>
#include <functional>
#include <string>
#include <utility>

namespace host {

// How much a line matters to whom it is for.
enum class LineWeight { Plain, Warning, Error };

// Where lines for a person go: the standard error stream, or whoever takes them in its place; and the interface, if it
// shows them. Colour codes in a text, which ColorCodes.h tells of, are for the interface alone.
class Console
{
public:
    // What lines are about: each begins with it.
    CallTrail& Trail() { return m_Trail; }

    using Taker = std::function<void(const std::string& line)>;

    // From now on lines go there. Returns where they went until now; null is the standard error stream.
    Taker SendTo(Taker taker) { return std::exchange(m_Taker, std::move(taker)); }

    // From now on lines are added there as well, each with a line end; null ends that. Returns where they were added.
    std::string* CopyTo(std::string* copy) { return std::exchange(m_Copy, copy); }

    using Screen = std::function<void(const std::string& line, LineWeight weight)>;

    // From now on the interface shows lines too.
    void ShowOn(Screen screen) { m_Screen = std::move(screen); }

    // Writes a text, printf style.
    void Print(const char* format, ...);
    void Warn(const char* format, ...);

    // Writes what a command answers: it is about nothing but itself.
    void Answer(const std::string& text);

    // Writes a text as it is, each of its lines as one of its own.
    void PrintText(const std::string& text, LineWeight weight = LineWeight::Plain);

private:
    void PrintArguments(LineWeight weight, const char* format, std::va_list arguments);
    void WriteLine(const std::string& line, LineWeight weight);

    CallTrail m_Trail;
    Taker m_Taker;
    std::string* m_Copy = nullptr;
    Screen m_Screen;
};

// Lets lines go elsewhere for the length of a scope.
class ConsoleDiversion
{
public:
    ConsoleDiversion(Console& console, Console::Taker taker)
        : m_Console(console), m_Before(console.SendTo(std::move(taker)))
    {
    }
    ~ConsoleDiversion() { m_Console.SendTo(std::move(m_Before)); }
    ConsoleDiversion(const ConsoleDiversion&) = delete;
    ConsoleDiversion& operator=(const ConsoleDiversion&) = delete;

private:
    Console& m_Console;
    Console::Taker m_Before;
};

} // namespace host
