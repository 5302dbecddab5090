#include "teskara/controls/TeskTooltip.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"

#include <algorithm>
#include <cstdarg>
#include <cstddef>

namespace {

constexpr char Kind[] = "tooltip";

constexpr u32 LeastWidth = 30;
constexpr u32 LineGap = 1;
constexpr char LineBreak = '\n';

// clang-format off
constexpr MarkupValue<TeskTooltip> TooltipValues[] = {
    {"Font", Markup::Font<&TeskTooltip::Font>, {}},
};
// clang-format on

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "frame",
    .ScriptType = &pTeskTooltipType,
    .Tables = {&RowsOf<TooltipValues>},
});

} // namespace

TeskTooltip::~TeskTooltip()
{
    Reset();
}

bool TeskTooltip::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskFrame::FromXML(node, templateNode) || !ReadMarkup<TooltipValues>(*this, {node, templateNode}))
        return false;

    Visible = false;
    return true;
}

bool TeskTooltip::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskFrame::IsTypeOf(word);
}

MvTypeDefinition* TeskTooltip::GetMvType()
{
    return pTeskTooltipType;
}

void TeskTooltip::Render()
{
    const ElementWatch self(*this);
    Height = LineCount * (TextHeight() + LineGap) + 2 * Border;
    Width = std::max(Width, LeastWidth);
    TeskFrame::Render();
    if (self.Exists())
        RenderLines();
}

// A sequence may take lines away, add some, or end the tooltip. Places that come to be meanwhile wait for the next frame,
// so that lines that add lines do not hold up this one.
void TeskTooltip::RenderLines()
{
    const ElementWatch self(*this);
    const u32 textHeight = TextHeight();
    const u32 border = Border;
    const std::size_t places = Lines.Size();
    const i32 x = WrapAdd(AbsoluteX, border);
    i32 y = WrapAdd(AbsoluteY, border);
    u32 width = LeastWidth;
    for (std::size_t place = 0; place < places; ++place) {
        const TeskTooltipLine* line = Lines.Get(place);
        if (!line)
            continue;

        const char* text = line->Parse();
        if (!self.Exists())
            return;
        if (*text) {
            const u32 drawn = static_cast<u32>(DrawColoredText(Font.get(), text, x, y));
            width = std::max(width, drawn + textHeight + border);
        }
        y = WrapAdd(y, textHeight + LineGap);
    }
    Width = width;
}

// The tooltip steps away from a mouse that reaches it.
bool TeskTooltip::OnMouseMove(_Point2i&)
{
    Show(false);
    return false;
}

void TeskTooltip::ShowOnly(const char* text)
{
    Reset();
    Printf("%s", TextOrEmpty(text));
}

void TeskTooltip::AddLine(const char* text)
{
    Append(TextOrEmpty(text));
}

void TeskTooltip::Append(std::string_view text)
try {
    auto line = std::make_unique<TeskTooltipLine>(text);
    Lines.Add(line.get());
    line.release();
    ++LineCount;
} catch (...) {
    return;
}

void TeskTooltip::Print(const char* text)
{
    if (!text)
        return;

    std::string_view rest = text;
    for (std::size_t end = rest.find(LineBreak); end != rest.npos; end = rest.find(LineBreak)) {
        Append(rest.substr(0, end));
        rest.remove_prefix(end + 1);
    }
    Append(rest);
}

void TeskTooltip::Printf(const char* format, ...)
{
    if (!format)
        return;

    char text[Limits::TextBuffer4096];
    std::va_list arguments;
    va_start(arguments, format);
    FormatBoundedList(text, sizeof(text), format, arguments);
    va_end(arguments);
    Print(text);
}

void TeskTooltip::Reset()
{
    for (std::size_t place = 0; place < Lines.Size(); ++place) {
        const std::unique_ptr<TeskTooltipLine> line(Lines.Get(place));
        Lines.Set(place, nullptr);
    }
    LineCount = 0;
}
