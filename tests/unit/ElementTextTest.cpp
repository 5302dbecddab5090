#include "teskara/controls/TeskText.h"
#include "teskara/core/CUIManager.h"
#include "tests/unit/ToolkitTest.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>

namespace {

class ElementTextTest : public ToolkitTest
{
protected:
    ElementTextTest()
    {
        Load(
            "<text name='T'><Width>100000</Width><Height>20</Height><Font><Size>10</Size><Color>ff123456</Color></Font>"
            "</text>");
        Frame();
    }

    TeskText& Text() { return As<TeskText>("T"); }

    // Bytes of text that reached the host.
    u64 SentBytes(u64 width) const { return width / 6; }
};

} // namespace

TEST_F(ElementTextTest, AStaticTextIsCutAt2047Bytes)
{
    for (const std::size_t length : {2046u, 2047u, 2048u, 2049u}) {
        Text().SetText(std::string(length, 'a').c_str());
        EXPECT_EQ(std::min<std::size_t>(length, 2047), std::strlen(Text().SplitText.get())) << length;
        EXPECT_EQ(length, Text().Text.size());
    }
}

TEST_F(ElementTextTest, ALiveTextIsCutAt2047BytesOfItsExpansion)
{
    Text().SetText("${long}");
    for (const std::size_t length : {2046u, 2047u, 2048u, 2049u}) {
        Host.Expand = [length](const std::string&) { return std::string(length, 'q'); };
        const std::string drawn = Frame();
        EXPECT_EQ(std::min<std::size_t>(length, 2047), std::count(drawn.begin(), drawn.end(), 'q')) << length;
    }
}

TEST_F(ElementTextTest, ColouredTextIsCutAt2047BytesWithItsCodes)
{
    for (const std::size_t length : {2046u, 2047u, 2048u, 2049u}) {
        const std::string text = "\ar" + std::string(length - 2, 'a');
        const u64 width = Text().DrawColoredText(Text().Font.get(), text.c_str(), 0, 0);
        EXPECT_EQ(std::min<std::size_t>(length, 2047) - 2, SentBytes(width)) << length;
        EXPECT_EQ(0xff123456u, Text().Font->Color);
    }
}

TEST_F(ElementTextTest, ACodeThatTheEndCutsOffIsDrawnAsItStands)
{
    const std::string pad(2040, 'a');
    for (const char* code : {"\a#12345", "\a-", "\a", "\a#"}) {
        Host.TakeCalls();
        const std::string text = "\ar" + pad.substr(std::strlen(code)) + code;
        Text().DrawColoredText(Text().Font.get(), text.c_str(), 0, 0);
        EXPECT_EQ(0xff123456u, Text().Font->Color);
    }
}

TEST_F(ElementTextTest, LengthAndTextWithoutCodesStayWithinEachPrefix)
{
    const std::string all = "a\arb\a-gc\a#12aBcFd\axe\a\a?f";
    for (std::size_t length = 0; length <= all.size(); ++length) {
        const std::unique_ptr<char[]> from(new char[length + 1]); // no byte behind the end
        std::memcpy(from.get(), all.data(), length);
        from[length] = 0;
        const std::unique_ptr<char[]> to(new char[length + 1]);
        TeskElement::StripColor(from.get(), to.get());
        EXPECT_EQ(std::strlen(to.get()), TeskElement::ColorStrlen(from.get())) << length;
    }
    std::string stripped(all.size(), 0);
    TeskElement::StripColor("a\arb\a-gc\a#12aBcFd\axe", stripped.data());
    EXPECT_STREQ("abcde", stripped.c_str());
    EXPECT_EQ(0u, TeskElement::ColorStrlen(nullptr));
}

TEST_F(ElementTextTest, AnyOpacityGivesAByte)
{
    struct Row {
        float Opacity;
        u32 Color;
    };
    const float infinity = std::numeric_limits<float>::infinity();
    for (const Row& row : {Row{0.5f, 0x7f00ff00u}, Row{0.0f, 0x0000ff00u}, Row{-1.0f, 0x0000ff00u},
             Row{1.001f, 0xff00ff00u}, Row{1e30f, 0xff00ff00u}, Row{-1e30f, 0x0000ff00u}, Row{infinity, 0xff00ff00u},
             Row{-infinity, 0x0000ff00u}, Row{std::numeric_limits<float>::quiet_NaN(), 0x0000ff00u}}) {
        Text().AbsoluteAlpha = row.Opacity;
        EXPECT_EQ(row.Color, Text().AdjustColor(0xff00ff00u)) << row.Opacity;
    }
    Text().AbsoluteAlpha = infinity;
    EXPECT_EQ(0x0000ff00u, Text().AdjustColor(0x0000ff00u)); // nothing times everything
}

TEST_F(ElementTextTest, AWidthOfTheHostBeyondEveryRangeMovesThePiecesAround)
{
    Host.Widths['a'] = 3e9f;
    Text().DrawColoredText(Text().Font.get(), "\ara\agb", 2147483000, 0);
    EXPECT_EQ(0xff123456u, Text().Font->Color);
}

TEST_F(ElementTextTest, ARecordWithoutAVerticalAlignmentIsAtTheTop)
{
    _CreateText record;
    record.Text = "words";
    record.VerticalAlignment = AlignLeft;
    Text().Create(record, nullptr);
    EXPECT_EQ(AlignTop, Text().VerticalAlignment);
}

TEST_F(ElementTextTest, StaticSplitsMeasureWithTheFontTheyAreGiven)
{
    char text[2048] = "one two three";
    u64 width = 1;
    EXPECT_EQ(2u, TeskText::Split(text, 60, Text().Font.get(), &width));
    EXPECT_STREQ("one two\nthree", text);
    EXPECT_EQ(60u, width); // of the line that was broken; the last is narrower

    std::strcpy(text, "one two three");
    width = 1000;
    EXPECT_EQ(1u, TeskText::Split(text, 600, Text().Font.get(), &width));
    EXPECT_EQ(1000u, width);

    Text().Font->Fixed = true;
    std::strcpy(text, "one two three");
    width = 0;
    EXPECT_EQ(2u, TeskText::Split(text, 65, Text().Font.get(), &width)); // ten columns
    EXPECT_STREQ("one two\nthree", text);
    EXPECT_EQ(60u, width);

    std::strcpy(text, "one two three");
    u64 columns = 99;
    EXPECT_EQ(0u, TeskText::SplitFixed(text, 0, &columns));
    EXPECT_STREQ("one two three", text);
    EXPECT_EQ(99u, columns);
}
