#pragma once

#include "host/script/CallTrail.h"

#include <cstdarg>
#include <functional>
#include <string>
#include <utility>

namespace host {

// Where lines for a person go: the standard error stream, or whoever takes them in its place.
class Console
{
public:
    // What lines are about: each begins with it.
    CallTrail& Trail() { return m_Trail; }

    using Taker = std::function<void(const std::string& line)>;

    // From now on lines go there. Returns where they went until now; null is the standard error stream.
    Taker SendTo(Taker taker) { return std::exchange(m_Taker, std::move(taker)); }

    // Writes a text, printf style.
    void Print(const char* format, ...);
    void PrintArguments(const char* format, std::va_list arguments);

    // Writes a text as it is, each of its lines as one of its own.
    void PrintText(const std::string& text);

private:
    void WriteLine(const std::string& line);

    CallTrail m_Trail;
    Taker m_Taker;
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
