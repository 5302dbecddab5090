// Texts as values: numbers, colours, places, switches and words, from a node, a template or neither, and colour codes.
// All must come out as the plain model says. The first byte says where the markup has a value, the next eight are a
// number, and what follows is two texts with a zero between them: the node's, which numbers and colour codes are read
// from as well, and the template's.

#include "teskara/core/Numbers.h"
#include "teskara/element/ColorCodes.h"
#include "teskara/element/MarkupTable.h"
#include "teskara/markup/ElementPosition.h"
#include "teskara/markup/MarkupSource.h"
#include "teskara/markup/XMLAttribute.h"
#include "teskara/markup/XMLHelper.h"
#include "tests/fuzz/ModelCheck.h"
#include "tests/fuzz/ValueModel.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace {

constexpr u32 FontColor = 0x80123456;
constexpr std::size_t LongestText = 2000;

bool SameBits(double left, double right)
{
    return std::bit_cast<u64>(left) == std::bit_cast<u64>(right) || (std::isnan(left) && std::isnan(right));
}

bool SameBits(float left, float right)
{
    return SameBits(static_cast<double>(left), static_cast<double>(right));
}

// Share of a place, so that values that are no number are equal too.
bool SamePlace(const ElementPosition& position, u32 value, const ValueModel::Place& expected)
{
    const bool isSame = position.Type == PositionShare
        ? SameBits(position.Share(), std::bit_cast<float>(expected.Factor))
        : position.Factor == expected.Factor;
    return isSame && position.Type == expected.Type && value == expected.Value;
}

void CheckReaders(const std::string& text)
{
    Require(static_cast<u32>(ReadInteger(text)) == ValueModel::Integer(text), "an integer differs");
    Require(SameBits(ReadDouble(text), ValueModel::Real(text)), "a double differs");
    Require(SameBits(ReadFloat(text), static_cast<float>(ValueModel::Real(text))), "a float differs");

    constexpr u32 Former = 0xABCD;
    u32 value = Former;
    const std::optional<u32> expected = ValueModel::Hex(text);
    Require(ReadHex(text, value) == expected.has_value(), "a text is and is not hexadecimal");
    Require(value == expected.value_or(Former), "a hexadecimal number differs");
}

void CheckTruncation(double value)
{
    constexpr double Bits31 = 2147483648.0;
    constexpr double Bits63 = 9223372036854775808.0;
    const i64 least = std::numeric_limits<i32>::min();
    Require(TruncateToI32(value) == ValueModel::Whole(value, -Bits31, Bits31).value_or(least), "signed differs");
    const u64 wide = static_cast<u64>(ValueModel::Whole(value, -Bits63, Bits63).value_or(0));
    Require(TruncateToU32(value) == static_cast<u32>(wide), "unsigned differs");
    const i64 large = value > 0 ? 255 : 0;
    Require(TruncateToByte(value) == ValueModel::Whole(value, 0, 256).value_or(large), "byte differs");
}

// What a writer writes into room for so many bytes begins what it writes into enough.
template <class Write> std::string Written(std::size_t room, Write write)
{
    char whole[512];
    const std::string text(whole, write(whole, sizeof(whole)));
    char cut[32] = "";
    const std::size_t size = std::min(room, sizeof(cut));
    const std::size_t length = write(cut, size);
    Require(length == (size == 0 ? 0 : std::min(size - 1, text.size())), "the length of a cut text is wrong");
    Require(std::string_view(cut) == std::string_view(text).substr(0, length), "a text is cut wrongly");
    return text;
}

void CheckWriters(u64 bits)
{
    const std::size_t room = bits % 32;
    const auto integer = static_cast<i64>(bits);
    Require(Written(room, [=](char* to, std::size_t size) { return WriteInteger(to, size, integer); })
            == std::to_string(integer),
        "an integer is written wrongly");

    const auto number = std::bit_cast<double>(bits);
    const std::string shortest =
        Written(room, [=](char* to, std::size_t size) { return WriteDouble(to, size, number); });
    Require(SameBits(ReadDouble(shortest), number), "a double does not come back");
    const auto small = std::bit_cast<float>(static_cast<u32>(bits));
    const std::string brief = Written(room, [=](char* to, std::size_t size) { return WriteFloat(to, size, small); });
    Require(SameBits(ReadFloat(brief), small), "a float does not come back");

    const int decimals = static_cast<int>(bits >> 32 & 15);
    const std::string fixed =
        Written(room, [=](char* to, std::size_t size) { return WriteFixed(to, size, number, decimals); });
    char expected[512];
    std::snprintf(expected, sizeof(expected), "%.*f", decimals, number);
    Require(fixed == expected, "a fixed number of decimals is written wrongly");
}

void CheckColorCodes(const std::string& text)
{
    Require(TeskElement::ColorStrlen(text.c_str()) == ValueModel::WithoutCodes(text).size(), "the length differs");
    std::string stripped(text.size() + 1, '?');
    TeskElement::StripColor(text.c_str(), stripped.data());
    Require(stripped.c_str() == ValueModel::WithoutCodes(text), "the text without codes differs");

    ColorCodes::Stack colors;
    u32 color = FontColor;
    std::string rest = text;
    for (const ValueModel::Piece& expected : ValueModel::ColoredPieces(text, FontColor)) {
        rest.erase(0, rest.find(ColorCodes::Mark) + 1);
        const std::string piece = rest.substr(0, rest.find(ColorCodes::Mark));
        const char* const behind = colors.Apply(piece.c_str(), color);
        Require(ValueModel::Piece{behind, color} == expected, "a piece of coloured text differs");
    }
}

// Markup of one value: an element with the attribute "v" and the child "v". The texts are put in for each input.
class ValueMarkup
{
public:
    ValueMarkup() : m_Root(XMLNode::Create(nullptr, "root", XMLElementNode))
    {
        m_Root->SetAttribute("v", "");
        XMLNode::Create(m_Root.get(), "between", XMLCommentNode);
        m_Child = XMLNode::Create(m_Root.get(), "V", XMLElementNode);
        m_Text = XMLNode::Create(m_Child, "", XMLTextNode);
    }

    // The child is there, and has content.
    void Set(const std::string& text, bool exists, bool hasContent)
    {
        m_Root->Attributes->Value = text.c_str();
        m_Text->Name = text.c_str();
        m_Child->FirstChild = m_Child->LastChild = hasContent ? m_Text : nullptr;
        m_Root->FirstChild->Next = exists ? m_Child : nullptr;
        Text = text;
        Exists = exists;
        HasContent = hasContent;
    }

    XMLNode* Root() const { return m_Root.get(); }

    // What the child says; empty without content, nothing without a child.
    std::optional<std::string> Value() const
    {
        if (!Exists)
            return std::nullopt;
        return HasContent ? Text : std::string();
    }

    std::string Text;
    bool Exists = false;
    bool HasContent = false;

private:
    XMLTree m_Root;
    XMLNode* m_Child;
    XMLNode* m_Text;
};

void CheckHelperNumbers(const ValueMarkup& markup, u32 fallback)
{
    XMLNode* const node = markup.Root();
    const std::optional<std::string> value = markup.Value();
    const std::string text = value.value_or("");
    const auto real = static_cast<float>(fallback);
    Require(XMLHelper::GetIntValue(node, "v", fallback) == (value ? ValueModel::Integer(text) : fallback), "int value");
    Require(XMLHelper::GetHexValue(node, "v", fallback) == (value ? ValueModel::Hex(text).value_or(0) : fallback),
        "hex value");
    Require(
        SameBits(XMLHelper::GetFloatValue(node, "v", real), value ? static_cast<float>(ValueModel::Real(text)) : real),
        "float value");
    Require(XMLHelper::GetStringValue(node, "v", "none") == value.value_or("none"), "string value");
    const bool toggle = fallback % 2 != 0;
    const bool isOn = !markup.HasContent || ValueModel::Integer(text) != 0;
    Require(XMLHelper::GetToggle(node, "v", toggle) == (value ? isOn : toggle), "toggle");

    const std::string& attribute = markup.Text;
    const bool isThere = !attribute.empty();
    Require(XMLHelper::GetIntAttribute(node, "V", fallback) == (isThere ? ValueModel::Integer(attribute) : fallback),
        "int attribute");
    Require(XMLHelper::GetHexAttribute(node, "V", fallback)
            == (isThere ? ValueModel::Hex(attribute).value_or(0) : fallback),
        "hex attribute");
    Require(SameBits(XMLHelper::GetFloatAttribute(node, "V", real),
                isThere ? static_cast<float>(ValueModel::Real(attribute)) : real),
        "float attribute");
    Require(XMLHelper::GetStringAttribute(node, "V", "none") == (isThere ? attribute : "none"), "string attribute");
}

void CheckHelperFactors(const ValueMarkup& markup, u32 fallback)
{
    constexpr float Former = 7;
    XMLNode* const node = markup.Root();
    const std::optional<float> share = ValueModel::Share(markup.Text);
    const u32 pixels = share ? fallback : ValueModel::Integer(markup.Text);

    float factor = Former;
    const u32 value = XMLHelper::GetFactorValue(node, "v", factor, fallback);
    Require(value == (!markup.Exists ? fallback : markup.HasContent ? pixels : 0), "factor value");
    Require(SameBits(factor, !markup.Exists ? 0 : markup.HasContent ? share.value_or(0) : Former), "factor");

    factor = Former;
    const bool isThere = !markup.Text.empty();
    Require(XMLHelper::GetFactorAttribute(node, "v", factor, fallback) == (isThere ? pixels : fallback),
        "factor attribute");
    Require(SameBits(factor, isThere ? share.value_or(0) : 0), "factor of an attribute");
}

void CheckHelperPlaces(const ValueMarkup& markup, u32 fallback)
{
    constexpr ElementPosition Former = {9, 8};
    XMLNode* const node = markup.Root();
    const ValueModel::Place pixels = {0, fallback, fallback};

    ElementPosition position = Former;
    u32 value = XMLHelper::GetElementPositionValue(node, "v", position, fallback);
    Require(SamePlace(position, value,
                !markup.Exists          ? pixels
                    : markup.HasContent ? ValueModel::Position(markup.Text, fallback)
                                        : ValueModel::Place{Former.Type, Former.Factor, 0}),
        "place value");

    position = Former;
    value = XMLHelper::GetElementPositionAttribute(node, "v", position, fallback);
    Require(SamePlace(position, value, markup.Text.empty() ? pixels : ValueModel::Position(markup.Text, fallback)),
        "place attribute");

    position = Former;
    value = fallback;
    const bool isRead = XMLHelper::GetElementPositionValueEx(node, "v", position, value);
    Require(isRead == (markup.Exists && markup.HasContent), "whether there is a place");
    Require(
        SamePlace(position, value,
            isRead ? ValueModel::Position(markup.Text, 0) : ValueModel::Place{Former.Type, Former.Factor, fallback}),
        "place");
}

constexpr MarkupWord Words[] = {{"left", 1}, {"Center", 2}, {"RIGHT", 3}};

// A control's values, as far as reading them needs no control.
struct Fields {
    u32 Number = 0;
    u8 Narrow = 0;
    u32 Color = 0;
    float Real = 0;
    bool IsOn = false;
    std::string Text;
    u32 Word = 0;
    u32 Width = 0;
    ElementPosition WidthPosition;
};

Fields ReadFields(const MarkupSource& source, u32 fallback)
{
    Fields fields;
    Markup::Integer<&Fields::Number>.Read(fields, source, "v", fallback);
    Markup::Integer<&Fields::Narrow>.Read(fields, source, "v", fallback);
    Markup::Hex<&Fields::Color>.Read(fields, source, "v", fallback);
    Markup::Float<&Fields::Real>.Read(fields, source, "v", static_cast<float>(fallback));
    Markup::Toggle<&Fields::IsOn>.Read(fields, source, "v", fallback % 2 != 0);
    Markup::Text<&Fields::Text>.Read(fields, source, "v", "none");
    Markup::Word<&Fields::Word, Words>.Read(fields, source, "v", fallback);
    Markup::Place<&Fields::Width, &Fields::WidthPosition>.Read(fields, source, "v", {});
    return fields;
}

u32 WordOf(std::string text, u32 fallback)
{
    for (char& letter : text)
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
    return text == "left" ? 1 : text == "center" ? 2 : text == "right" ? 3 : fallback;
}

void CheckForms(const ValueMarkup& node, const ValueMarkup& base, u32 fallback)
{
    const ValueMarkup& chosen = node.Exists ? node : base;
    const std::optional<std::string> value = chosen.Value();
    const std::string text = value.value_or("");
    const u32 number = value ? ValueModel::Integer(text) : fallback;
    const Fields fields = ReadFields({node.Root(), base.Root()}, fallback);
    Require(fields.Number == number && fields.Narrow == static_cast<u8>(number), "integer form");
    Require(fields.Color == (value ? ValueModel::Hex(text).value_or(0) : fallback), "hex form");
    Require(SameBits(fields.Real, value ? static_cast<float>(ValueModel::Real(text)) : static_cast<float>(fallback)),
        "float form");
    const bool isOn = value ? !chosen.HasContent || number != 0 : fallback % 2 != 0;
    Require(fields.IsOn == isOn, "toggle form");
    Require(fields.Text == value.value_or("none"), "string form");
    Require(fields.Word == WordOf(text, fallback), "word form");

    const bool isNodes = node.Exists && node.HasContent;
    const bool isBases = base.Exists && base.HasContent;
    Require(SamePlace(fields.WidthPosition, fields.Width,
                isNodes       ? ValueModel::Position(node.Text, 0)
                    : isBases ? ValueModel::Position(base.Text, 0)
                              : ValueModel::Place{}),
        "place form");
}

std::string TakeText(std::string_view& bytes)
{
    const std::string text(bytes.substr(0, std::min(bytes.find('\0'), LongestText)));
    bytes.remove_prefix(std::min(bytes.size(), text.size() + 1));
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static ValueMarkup node;
    static ValueMarkup base;
    unsigned char head[1 + sizeof(u64)] = {};
    const std::size_t taken = std::min(size, sizeof(head));
    std::copy_n(data, taken, head);
    u64 bits = 0;
    std::memcpy(&bits, head + 1, sizeof(bits));
    CheckTruncation(std::bit_cast<double>(bits));
    CheckTruncation(static_cast<double>(static_cast<i64>(bits)) / 16);
    CheckWriters(bits);

    std::string_view rest(reinterpret_cast<const char*>(data + taken), size - taken);
    const std::string text = TakeText(rest);
    const std::string baseText = TakeText(rest);
    CheckReaders(text);
    CheckColorCodes(text);

    node.Set(text, head[0] & 1, head[0] & 2);
    base.Set(baseText, head[0] & 4, head[0] & 8);
    const auto fallback = static_cast<u32>(bits);
    CheckHelperNumbers(node, fallback);
    CheckHelperFactors(node, fallback);
    CheckHelperPlaces(node, fallback);
    CheckForms(node, base, fallback);
    return 0;
}
