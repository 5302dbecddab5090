#include "teskara/text/TeskConsole.h"

#include "teskara/controls/Panel.h"
#include "teskara/controls/ScrollBarMarkup.h"
#include "teskara/controls/TeskScrollBar.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Numbers.h"
#include "teskara/core/OwnThread.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"
#include "teskara/text/LineWrap.h"

#include <algorithm>

namespace {

constexpr char Kind[] = "console";
constexpr u32 FewestLines = 100;
constexpr u32 SmallestFont = 8;
constexpr u32 LargestFont = 96;

constexpr MarkupForm<TeskConsole> LineCount = {
    "integer", [](TeskConsole& console, const MarkupSource& source, TagName tag, MarkupDefault fallback) {
        console.BackBufferSize = std::max(static_cast<u32>(source.Integer(tag, fallback.Number)), FewestLines);
    }};

// clang-format off
constexpr MarkupValue<TeskConsole> ConsoleValues[] = {
    {"BackgroundColor",   Markup::Hex<&TeskConsole::BackgroundColor>,       0},
    {"ScrollbackColor",   Markup::Hex<&TeskConsole::ScrollbackColor>,       0},
    {"BorderColor",       Markup::Hex<&TeskConsole::BorderColor>,           0},
    {"SelectionColor",    Markup::Hex<&TeskConsole::SelectionColor>,        0},
    {"Border",            Markup::Integer<&TeskConsole::Border>,            0},
    {"Font",              Markup::FixedFont<&TeskConsole::Font>,            {}},
    {"Texture",           Markup::Texture<&TeskConsole::Texture>,           {}},
    {"ScrollbackTexture", Markup::Texture<&TeskConsole::ScrollbackTexture>, {}},
    {"BackBufferSize",    LineCount,                                        0},
};
// clang-format on

constexpr MarkupPart BarPart = {"ScrollBar", "scrollbar", MarkupPlace::NamedChild};
constexpr MarkupPart ConsoleParts[] = {BarPart};

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "element",
    .ScriptType = &pTeskConsoleType,
    .Tables = {&RowsOf<ConsoleValues>},
    .Parts = {ConsoleParts},
});

} // namespace

bool TeskConsole::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    const MarkupSource source(node, templateNode);
    if (!TeskElement::FromXML(node, templateNode) || !ReadMarkup<ConsoleValues>(*this, source))
        return false;

    Lines.SetSize(BackBufferSize);
    _CreateScrollBar values = UprightScrollBar();
    values.PositionX = {PositionFarEdge, values.Width};
    values.Range = BackBufferSize;
    const ElementWatch self(*this);
    TeskScrollBar* bar = LoadScrollBar(*this, source, BarPart.Name, values);
    if (!bar || !self.Exists())
        return false;

    ScrollBar = bar;
    bar->RecalculateSize(true);
    if (self.Exists() && ScrollBar)
        ScrollBar->SetRange(BackBufferSize);
    if (self.Exists() && ScrollBar)
        ScrollBar->SetValue(0);
    return self.Exists();
}

bool TeskConsole::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskElement::IsTypeOf(word);
}

MvTypeDefinition* TeskConsole::GetMvType()
{
    return pTeskConsoleType;
}

void TeskConsole::Print(const char* text)
{
    OwnThread::Expect("Print");
    if (Font)
        SplitFixed(text, WrapSub<u32>(Width, ScrollBarWidth()) / Font->GetCharWidthA());
}

void TeskConsole::Printf(const char* format, ...)
{
    char text[Limits::TextBuffer4096];
    std::va_list arguments;
    va_start(arguments, format);
    FormatBoundedList(text, sizeof(text), format, arguments);
    va_end(arguments);
    Print(text);
}

// A kind that is not ours may end the console by a line.
void TeskConsole::SplitFixed(const char* text, unsigned long long width)
{
    const ElementWatch self(*this);
    LineWrap lines(TextOrEmpty(text), width);
    for (std::string_view line; self.Exists() && lines.Next(line);) {
        char terminated[LineWrap::LongestLine + 1];
        CopyBounded(terminated, sizeof(terminated), line);
        AddLineInternal(terminated);
    }
}

void TeskConsole::AddLineInternal(const char* text)
{
    Lines.Add(TextOrEmpty(text));
}

void TeskConsole::Clear()
{
    Lines.Clear();
}

void TeskConsole::SetFontSize(u32 size)
{
    size = std::clamp(size, SmallestFont, LargestFont);
    const ElementWatch self(*this);
    if (Font)
        Font->SetHeight(static_cast<u8>(size));
    if (self.Exists())
        VisibleLines = LinesOfPitch(size + 1);
}

u32 TeskConsole::ScrollBarWidth() const
{
    return ScrollBar ? ScrollBar->Width : 0;
}

// A console that was made without markup has no font.
u32 TeskConsole::Pitch() const
{
    return (Font ? Font->Size : 0u) + 1;
}

i32 TeskConsole::LinesOfPitch(u32 pitch) const
{
    const i32 height = WrapSub(Height, 2 * Border);
    return height > 0 ? height / static_cast<i32>(pitch) : 0;
}

void TeskConsole::SizeRecalculated(bool)
{
    VisibleLines = LinesOfPitch(Pitch());
    if (ScrollBar)
        PlaceScrollBar();
}

// Inside of the border at the far edge, where it also stays when only the children follow a new size.
void TeskConsole::PlaceScrollBar()
{
    const u32 height = Height - 2 * Border;
    ScrollBar->PositionX = {PositionFarEdge, ScrollBar->Width + Border};
    ScrollBar->PositionHeight = {PositionFarEdge, 2 * Border};
    ScrollBar->X = WrapSub(Width, ScrollBar->PositionX.Factor);
    if (ScrollBar->Height == height)
        return;

    ScrollBar->Height = height;
    ScrollBar->RecalculateChildrenSize();
}

void TeskConsole::Render()
{
    DrawBackground();
    if (Selecting)
        FillRect(Selection, SelectionColor);
    if (Font)
        DrawLines();
    TeskElement::Render();
}

void TeskConsole::DrawBackground()
{
    tagRECT rect = ScreenRect();
    rect.right = WrapSub(rect.right, ScrollBarWidth());
    Panel panel = {nullptr, BackgroundColor, Border, BorderColor};
    if (!IsLive()) {
        panel.Texture = ScrollbackTexture ? ScrollbackTexture.get() : Texture.get();
        panel.BackgroundColor = ScrollbackColor;
    }
    DrawPanel(*this, rect, panel);
}

// The host is given copies: what it draws may make it print here.
void TeskConsole::DrawLines()
{
    const i32 x = WrapAdd(AbsoluteX, TextGrid::LeftMargin);
    const i32 y = WrapAdd(AbsoluteY, TextGrid::TopMargin);
    const i32 right = WrapAdd(WrapSub(Width, ScrollBarWidth()), x);
    Lines.VisitRows(LastLine(), VisibleLines, [&](i64 row, const char* line) {
        char copy[LineWrap::LongestLine + 1];
        CopyBounded(copy, sizeof(copy), line);
        DrawColoredTextClipped(Font.get(), copy, x, WrapAdd(y, WrapMul<u32>(static_cast<u32>(row), Pitch())), right);
    });
}
