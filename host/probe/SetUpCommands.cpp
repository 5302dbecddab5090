// The commands that say what the host has: its surface, its clock, its files and its texts.

#include "host/probe/ProbeCommands.h"

#include "host/probe/ProbeSession.h"
#include "host/probe/ValueText.h"

namespace {

void Display(ProbeSession& session, const CommandCall& call)
{
    if (call.Count() == 1 && call.Text(0) == "fail")
        session.Drawing.DisplaySize.reset();
    else
        session.Drawing.DisplaySize = _Point2i{call.Integer(0), call.Integer(1)};
}

void Tick(ProbeSession& session, const CommandCall& call)
{
    const bool advance = call.Text(0).starts_with('+');
    const u32 ticks = call.Unsigned(0);
    session.Platform.Tick = advance ? session.Platform.Tick + ticks : ticks;
}

void WriteFile(ProbeSession& session, const std::string& name, std::string_view bytes)
{
    if (!session.Files.Write(name, bytes))
        throw CommandError("cannot write the file " + Quoted(name));
}

void File(ProbeSession& session, const CommandCall& call)
{
    WriteFile(session, call.Text(0), call.Body());
}

std::string ReadHexBytes(const std::string& digits)
{
    if (digits.size() % 2 || digits.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos)
        throw CommandError("not bytes in hex: " + Quoted(digits));

    std::string bytes;
    for (std::size_t at = 0; at < digits.size(); at += 2)
        bytes += static_cast<char>(*ReadNumber("0x" + digits.substr(at, 2)));
    return bytes;
}

// NAME HEX... [* COUNT]
void Bytes(ProbeSession& session, const CommandCall& call)
{
    constexpr std::size_t LargestFile = 1u << 30;
    std::size_t end = call.Count();
    std::size_t count = 1;
    if (end >= 3 && call.Text(end - 2) == "*") {
        count = call.Unsigned(end - 1);
        end -= 2;
    }

    std::string digits;
    for (std::size_t index = 1; index < end; ++index)
        digits += call.Text(index);
    const std::string part = ReadHexBytes(digits);
    if (!part.empty() && count > LargestFile / part.size())
        throw CommandError("too many bytes");

    std::string bytes;
    bytes.reserve(part.size() * count);
    for (std::size_t index = 0; index < count; ++index)
        bytes += part;
    WriteFile(session, call.Text(0), bytes);
}

void Texture(ProbeSession& session, const CommandCall& call)
{
    if (!session.Files.WriteTexture(call.Text(0), {call.Integer(1), call.Integer(2)}))
        throw CommandError("cannot write the file " + Quoted(call.Text(0)));
}

// CHAR is one byte, or the number of one.
void Glyph(ProbeSession& session, const CommandCall& call)
{
    const std::string& character = call.Text(0);
    const u32 byte = character.size() == 1 ? static_cast<u8>(character[0]) : call.Unsigned(0);
    if (byte > 255)
        throw CommandError("not one byte: " + Quoted(character));
    session.Drawing.SetGlyphWidth(static_cast<u8>(byte), call.Integer(1));
}

void Variable(ProbeSession& session, const CommandCall& call)
{
    session.Sequences.Variables[call.Text(0)] = call.Has(1) ? call.Rest(1) : "";
}

void Clipboard(ProbeSession& session, const CommandCall& call)
{
    auto& text = session.Platform.ClipboardText;
    if (call.Has(0))
        text = call.Rest(0);
    else
        session.Output.Result(text ? Quoted(*text) : "null");
}

void Position(ProbeSession& session, const CommandCall& call)
{
    session.Positions.Store({call.Text(0), call.Integer(1), call.Integer(2), call.Unsigned(3), call.Unsigned(4)});
}

void Positions(ProbeSession& session, const CommandCall&)
{
    for (const auto& [key, position] : session.Positions.All()) {
        const bool hasBlank = position.Name.find(' ') != std::string::npos;
        session.Output.Result((hasBlank ? Quoted(position.Name) : position.Name) + ' ' + std::to_string(position.X)
            + ' ' + std::to_string(position.Y) + ' ' + std::to_string(position.Width) + ' '
            + std::to_string(position.Height));
    }
}

void Locate(ProbeSession& session, const CommandCall& call)
{
    session.Files.SetLocation(call.Text(0), call.Rest(1));
}

void KeyMap(ProbeSession& session, const CommandCall& call)
{
    session.Platform.KeyTexts[call.Unsigned(0)] = call.Has(1) ? call.Rest(1) : "";
}

void Toggle(ProbeSession& session, const CommandCall& call)
{
    const bool on = call.Switch(1);
    if (call.Text(0) == "caps")
        session.Platform.CapsLock = on;
    else if (call.Text(0) == "num")
        session.Platform.NumLock = on;
    else
        throw CommandError("neither caps nor num: " + Quoted(call.Text(0)));
}

constexpr ProbeCommand Commands[] = {
    {"display", "W H | fail", 1, 2, CommandForm::Words, Display},
    {"tick", "N | +N", 1, 1, CommandForm::Words, Tick},
    {"file", "NAME <<", 1, 1, CommandForm::Words, File},
    {"bytes", "NAME HEX [* COUNT]", 1, AnyNumber, CommandForm::Words, Bytes},
    {"texture", "NAME W H", 3, 3, CommandForm::Words, Texture},
    {"glyph", "CHAR WIDTH", 2, 2, CommandForm::Words, Glyph},
    {"var", "NAME TEXT", 1, AnyNumber, CommandForm::Words, Variable},
    {"position", "NAME X Y W H", 5, 5, CommandForm::Words, Position},
    {"positions", "", 0, 0, CommandForm::Words, Positions},
    {"clipboard", "[TEXT]", 0, AnyNumber, CommandForm::Words, Clipboard},
    {"locate", "NAME PATH", 2, AnyNumber, CommandForm::Words, Locate},
    {"keymap", "CODE TEXT", 1, AnyNumber, CommandForm::Words, KeyMap},
    {"toggle", "caps|num on|off", 2, 2, CommandForm::Words, Toggle},
};

} // namespace

std::span<const ProbeCommand> SetUpCommands()
{
    return Commands;
}
