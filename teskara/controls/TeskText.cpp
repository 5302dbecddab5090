#include "teskara/controls/TeskText.h"

#include "teskara/controls/TextSplit.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/DataText.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/script/TypeGlobals.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>

namespace {

constexpr char Kind[] = "text";

// Where nothing is known of a character.
constexpr int UnknownWidth = 12;

// Room beyond which the memory of a broken text is given back when the next one is small.
constexpr std::size_t SplitSlack = 64;

constexpr MarkupWord HorizontalWords[] = {
    {"left", AlignLeft},
    {"center", AlignCenter},
    {"right", AlignRight},
};

constexpr MarkupWord VerticalWords[] = {
    {"top", AlignTop},
    {"center", AlignVerticalCenter},
    {"bottom", AlignBottom},
};

// clang-format off
constexpr MarkupValue<TeskText> TextValues[] = {
    {"Font",              Markup::Font<&TeskText::Font>,                             {}},
    {"Wrap",              Markup::Toggle<&TeskText::Wrap>,                           false},
    {"Alignment",         Markup::Word<&TeskText::Alignment, HorizontalWords>,       AlignLeft},
    {"VerticalAlignment", Markup::Word<&TeskText::VerticalAlignment, VerticalWords>, AlignTop},
    {"Text",              Markup::ShownText<&TeskText::Text>,                        ""},
};
// clang-format on

const MarkupShape g_Shape({
    .Name = Kind,
    .Base = "element",
    .ScriptType = &pTeskTextType,
    .Tables = {&RowsOf<TextValues>},
});

// Every byte as a text of its own.
constexpr auto MakeOneByteTexts()
{
    std::array<std::array<char, 2>, 256> texts = {};
    for (std::size_t byte = 0; byte < texts.size(); ++byte)
        texts[byte][0] = static_cast<char>(byte);
    return texts;
}

// Constants are measured faster than a text that was written just before.
constexpr auto OneByteTexts = MakeOneByteTexts();

u64 MeasureByte(TeskFont* font, char byte)
{
    const char* text = OneByteTexts[static_cast<u8>(byte)].data();
    if (!font)
        return UnknownWidth;
    if (font->FontID == 0)
        return font->GetTextWidth(text);

    return static_cast<u64>(Host::MeasureText(font->FontID, text, UnknownWidth));
}

u64 SplitByFixedFont(char* text, u64 width, TeskFont& font, u64* maxWidth)
{
    u64 space = font.GetTextWidth(" ");
    if (space == 0)
        space = UnknownWidth;
    u64 columns = maxWidth ? *maxWidth / space : 0;
    const u64 lines = TextSplit::ByColumns(text, width / space, &columns);
    if (maxWidth)
        *maxWidth = columns * space;
    return std::max<u64>(lines, 1);
}

} // namespace

bool TeskText::FromXML(XMLNode* node, XMLNode* templateNode)
{
    templateNode = TemplateFor(node, templateNode, Kind);
    if (!TeskElement::FromXML(node, templateNode) || !ReadMarkup<TextValues>(*this, {node, templateNode}))
        return false;

    TextChanged();
    return true;
}

bool TeskText::IsTypeOf(const char* word)
{
    return EqualsNoCase(TextOrEmpty(word), Kind) || TeskElement::IsTypeOf(word);
}

MvTypeDefinition* TeskText::GetMvType()
{
    return pTeskTextType;
}

void TeskText::Create(const _CreateText& record, XMLNode* templateNode)
{
    if (!templateNode)
        templateNode = g_UIManager.FindTemplate("text");
    CreateFrom(record);
    VerticalAlignment = record.VerticalAlignment ? record.VerticalAlignment : AlignTop;
    Alignment = record.Alignment;
    Wrap = record.Wrap;
    Font.reset(TeskFont::New(this, record.Font, templateNode));
    if (TryAssign(Text, record.Text) && !Text.empty())
        TextChanged();
    MoveZTop(true);
}

void TeskText::SetText(const char* text)
{
    if (TryAssign(Text, text))
        TextChanged();
}

void TeskText::SetHorizontalAlignment(eTextAlign alignment)
{
    Alignment = alignment;
}

void TeskText::SetVerticalAlignment(eTextAlign alignment)
{
    VerticalAlignment = alignment;
}

void TeskText::SetWrap(bool wrap)
{
    Wrap = wrap;
    RecalculateSize(false);
}

void TeskText::RecalculateSize(bool recurse)
{
    const ElementWatch self(*this);
    TeskElement::RecalculateSize(recurse);
    if (self.Exists() && SplitText)
        SplitStatic();
}

void TeskText::TextChanged()
{
    if (DataText::HasSequences(Text))
        SplitText.reset();
    else
        SplitStatic();
}

void TeskText::SplitStatic()
{
    char buffer[TextSplit::BufferSize];
    CopyBounded(buffer, sizeof(buffer), Text);
    NumLines = Split(buffer);
    KeepSplit(buffer);
}

// Memory is reused, so that a text that changes all the time allocates nothing.
void TeskText::KeepSplit(std::string_view text)
{
    const std::size_t size = text.size() + 1;
    if (!SplitText || m_SplitCapacity < size || m_SplitCapacity > 2 * size + SplitSlack) {
        SplitText.reset(new (std::nothrow) char[size]);
        m_SplitCapacity = static_cast<u32>(size);
    }
    if (SplitText)
        CopyBounded(SplitText.get(), m_SplitCapacity, text);
}

u64 TeskText::Split(char* text)
{
    return Split(text, Width, Font.get(), nullptr);
}

u64 TeskText::Split(char* text, u64 width, TeskFont* font, u64* maxWidth)
{
    if (!text)
        return 1;
    if (font && font->IsFixedFont())
        return SplitByFixedFont(text, width, *font, maxWidth);

    return TextSplit::ByPixels(text, width, maxWidth, [font](char byte) { return MeasureByte(font, byte); });
}

u64 TeskText::SplitFixed(char* text, u64 columns, u64* maxColumns)
{
    return text ? TextSplit::ByColumns(text, columns, maxColumns) : 0;
}

void TeskText::Render()
{
    if (RenderCustom())
        TeskElement::Render();
}

bool TeskText::RenderCustom()
{
    if (Text.empty())
        return true;
    if (!SplitText)
        return RenderDynamic();

    RenderAligned(SplitText.get());
    return true;
}

bool TeskText::RenderDynamic()
{
    static_assert(sizeof(DataText::Buffer) == TextSplit::BufferSize);
    DataText::Buffer text;
    const ElementWatch self(*this);
    DataText::Evaluate(Text, text);
    if (!self.Exists())
        return false;

    if (*text)
        RenderAligned(text);
    return true;
}

void TeskText::RenderAligned(char* text)
{
    switch (Alignment) {
    case AlignCenter:
        return RenderCenter(text);
    case AlignRight:
        return RenderRight(text);
    default:
        return RenderLeft(text);
    }
}

void TeskText::RenderLeft(char* text)
{
    RenderWith(&TeskElement::DrawTextClipped, text);
}

void TeskText::RenderCenter(char* text)
{
    RenderWith(&TeskElement::DrawTextCenter, text);
}

void TeskText::RenderRight(char* text)
{
    RenderWith(&TeskElement::DrawTextRight, text);
}

void TeskText::RenderWith(LineDraw draw, char* text)
{
    if (!Font || !text || (Wrap && RenderWrapped(draw, text)))
        return;

    (this->*draw)(Font.get(), text, AbsoluteX, TopOf(Font->Size));
}

// Where something of that height begins. What is higher than the element wraps, as all lengths do.
i32 TeskText::TopOf(u32 height) const
{
    const u32 room = Height - height;
    switch (VerticalAlignment) {
    case AlignVerticalCenter:
        return WrapAdd(AbsoluteY, room >> 1);
    case AlignBottom:
        return WrapAdd(AbsoluteY, room);
    default:
        return AbsoluteY;
    }
}

// Several lines, as many as fit. False: there is only one, or only room for one.
bool TeskText::RenderWrapped(LineDraw draw, char* text)
{
    const u32 lineHeight = Font->Size + 1u;
    const u32 fitting = Height / lineHeight;
    if (fitting < 2)
        return false;
    if (!SplitText)
        NumLines = Split(text);
    if (NumLines < 2)
        return false;

    const u32 count = static_cast<u32>(std::min<u64>(NumLines, fitting));
    RenderLines(draw, text, count, TopOf(lineHeight * count));
    return true;
}

void TeskText::RenderLines(LineDraw draw, const char* text, u32 count, i32 y)
{
    char line[TextSplit::BufferSize];
    for (u32 index = 0; index < count; ++index) {
        const char* end = std::strchr(text, TextSplit::LineBreak);
        CopyBounded(line, sizeof(line), end ? std::string_view(text, end) : std::string_view(text));
        (this->*draw)(Font.get(), line, AbsoluteX, y);
        if (!end)
            return;
        text = end + 1;
        y = WrapAdd(y, Font->Size + 1u);
    }
}
