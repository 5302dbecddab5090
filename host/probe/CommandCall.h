#pragma once

#include "host/probe/CommandLines.h"
#include "teskara/core/Types.h"

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

// A command that cannot be understood, or that names what is not there. Caught where the command was begun.
class CommandError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// How a command reads what stands behind its name.
enum class CommandForm : u8 {
    Words, // arguments, split at blanks outside double quotes
    Line, // one text: the rest of the line, or what is inside when that is one quoted text
    Path, // as Line, with the sequences left in place: the command evaluates them itself
};

// The name and the arguments of a command.
class CommandCall
{
public:
    // How the text of an argument is expanded while an atom runs; quoted: the text stood in double quotes.
    using Expander = std::function<std::string(const std::string& text, bool quoted)>;

    // The first word of a line.
    static std::string NameOf(const CommandLine& line);

    CommandCall(const CommandLine& line, CommandForm form, const Expander& expand);

    const std::string& Name() const { return m_Name; }

    // Whether text was handed over, and the text.
    bool HasBody() const { return m_HasBody; }
    const std::string& Body() const { return m_Body; }

    std::size_t Count() const { return m_Arguments.size(); }
    bool Has(std::size_t index) const { return index < Count(); }

    // These throw a CommandError where the argument is missing or of another form.

    const std::string& Text(std::size_t index) const;
    i32 Integer(std::size_t index) const;
    u32 Unsigned(std::size_t index) const;

    // Eight hex digits, or a number.
    u32 Color(std::size_t index) const;

    // "on" or "off".
    bool Switch(std::size_t index) const;

    // The argument, or if more follow, the rest of the line from there on.
    std::string Rest(std::size_t index) const;

    // The whole line behind the name, for the forms Line and Path.
    const std::string& Line() const { return m_Line; }

private:
    struct Argument {
        std::string Text;
        std::size_t Start = 0; // in m_Line
    };

    void SplitArguments(const Expander& expand);
    i64 Number(std::size_t index) const;

    std::string m_Name;
    std::string m_Line;
    std::string m_Body;
    bool m_HasBody = false;
    std::vector<Argument> m_Arguments;
};
