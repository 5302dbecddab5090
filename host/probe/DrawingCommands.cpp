// The command that calls an element's own drawing operations.

#include "host/probe/ProbeCommands.h"

#include "host/probe/ElementResources.h"
#include "host/probe/ProbeSession.h"
#include "host/probe/ValueText.h"
#include "teskara/element/TeskElement.h"

namespace {

// The arguments behind NAME and FORM.
constexpr std::size_t First = 2;

void RequireCount(const CommandCall& call, std::size_t least, std::size_t most)
{
    if (call.Count() < First + least || call.Count() > First + most)
        throw CommandError("wrong number of arguments for " + Quoted(call.Text(1)));
}

_Line ReadLine(const CommandCall& call, std::size_t index)
{
    return {call.Integer(index), call.Integer(index + 1), call.Integer(index + 2), call.Integer(index + 3)};
}

std::vector<_Line> ReadLines(const CommandCall& call, std::size_t index)
{
    if ((call.Count() - index) % 4)
        throw CommandError("a line is four coordinates");

    std::vector<_Line> lines;
    for (; index < call.Count(); index += 4)
        lines.push_back(ReadLine(call, index));
    return lines;
}

std::string DrawLine(TeskElement& element, const CommandCall& call)
{
    RequireCount(call, 6, 6);
    _Line line = ReadLine(call, First);
    return BoolText(element.DrawLine(line, call.Color(First + 4), call.Unsigned(First + 5)));
}

std::string DrawLines(TeskElement& element, const CommandCall& call)
{
    RequireCount(call, 2, AnyNumber);
    std::vector<_Line> lines = ReadLines(call, First + 2);
    const u32 count = static_cast<u32>(lines.size());
    return BoolText(element.DrawLines(lines.data(), count, call.Color(First), call.Unsigned(First + 1)));
}

std::string DrawTexturedLine(TeskElement& element, const CommandCall& call)
{
    RequireCount(call, 5, 5);
    _Line line = ReadLine(call, First);
    return BoolText(element.DrawLine(line, TextureOf(element), call.Unsigned(First + 4)));
}

std::string DrawTexturedLines(TeskElement& element, const CommandCall& call)
{
    RequireCount(call, 1, AnyNumber);
    std::vector<_Line> lines = ReadLines(call, First + 1);
    const u32 count = static_cast<u32>(lines.size());
    return BoolText(element.DrawLines(lines.data(), count, TextureOf(element), call.Unsigned(First)));
}

std::string DrawBorder(TeskElement& element, const CommandCall& call)
{
    RequireCount(call, 6, 6);
    const _Line corners = ReadLine(call, First);
    tagRECT rect = {corners.x1, corners.y1, corners.x2, corners.y2};
    return BoolText(element.DrawBorder(rect, call.Unsigned(First + 4), call.Color(First + 5)));
}

std::string DrawColoured(TeskElement& element, const CommandCall& call)
{
    RequireCount(call, 3, 4);
    TeskFont* font = FontOf(element);
    const char* text = call.Text(First).c_str();
    const i32 x = call.Integer(First + 1);
    const i32 y = call.Integer(First + 2);
    const u64 width = call.Has(First + 3) ? element.DrawColoredTextClipped(font, text, x, y, call.Integer(First + 3))
                                          : element.DrawColoredText(font, text, x, y);
    return std::to_string(width);
}

struct DrawingForm {
    const char* Word;
    std::string (*Draw)(TeskElement& element, const CommandCall& call);
};

constexpr DrawingForm Forms[] = {
    {"line", DrawLine},
    {"lines", DrawLines},
    {"texline", DrawTexturedLine},
    {"texlines", DrawTexturedLines},
    {"border", DrawBorder},
    {"coloured", DrawColoured},
};

void Draw(ProbeSession& session, const CommandCall& call)
{
    TeskElement& element = session.Element(call.Text(0));
    for (const DrawingForm& form : Forms) {
        if (form.Word == call.Text(1)) {
            session.Output.Result(form.Draw(element, call));
            return;
        }
    }
    throw CommandError("no form " + Quoted(call.Text(1)));
}

constexpr ProbeCommand Commands[] = {
    {"draw", "NAME FORM ...", 2, AnyNumber, CommandForm::Words, Draw},
};

} // namespace

std::span<const ProbeCommand> DrawingCommands()
{
    return Commands;
}
