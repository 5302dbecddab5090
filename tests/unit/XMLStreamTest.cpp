#include "teskara/markup/XMLStream.h"
#include "teskara/markup/XMLBuffer.h"
#include "teskara/markup/XMLDocument.h"
#include "teskara/markup/XMLToken.h"

#include "teskara/core/Limits.h"
#include "teskara/core/Utf8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

// Delivers UTF-16 units, at most so many at a time, and notes what it was asked for.
class UnitStream : public XMLStream
{
public:
    UnitStream(XMLDocument* document, std::u16string units, std::size_t most = Limits::TokenUnits)
        : XMLStream(document), m_Units(std::move(units)), m_Most(most)
    {
    }

    std::size_t Read(char16_t* buffer, std::size_t capacity) override
    {
        Asked.push_back(capacity);
        const std::size_t count = std::min({capacity, m_Most, m_Units.size() - m_Position});
        std::copy_n(m_Units.data() + m_Position, count, buffer);
        m_Position += count;
        return count;
    }

    std::vector<std::size_t> Asked;

private:
    std::u16string m_Units;
    std::size_t m_Most;
    std::size_t m_Position = 0;
};

std::u16string Xs(std::size_t length)
{
    return std::u16string(length, u'x');
}

std::string Tokens(XMLStream& stream)
{
    std::string all;
    XMLToken token;
    for (token.Set(stream.Next()); token.Type != XMLNoToken; token.Set(stream.Next()))
        all += std::to_string(token.Type) + ":" + std::string(token.View()) + " ";
    return all;
}

std::string TokensOf(std::u16string units, std::size_t most = Limits::TokenUnits)
{
    XMLDocument document;
    UnitStream stream(&document, std::move(units), most);
    return Tokens(stream);
}

} // namespace

TEST(XMLStream, EveryDelimiterIsATokenOfItsOwn)
{
    EXPECT_EQ(TokensOf(u"<>=\"'&/#;!-?[]\t\n\r x"),
        "2:< 3:> 4:= 5:\" 6:' 7:& 8:/ 9:# 10:; 11:! 12:- 13:? 14:[ 15:] 16:\t 16:\n 16:\r 17:  1:x ");
}

TEST(XMLStream, EverythingElseIsText)
{
    for (char16_t unit = 1; unit < 0x300; ++unit) {
        constexpr std::u16string_view Delimiters = u"<>=\"'&/#;!-?[]\t\n\r ";
        if (Delimiters.find(unit) != Delimiters.npos)
            continue;
        const std::u16string units = {u'a', unit, u'b'};
        EXPECT_EQ(TokensOf(units), "1:" + ToUtf8(units) + " ") << static_cast<int>(unit);
    }
}

TEST(XMLStream, TokensAreTheSameHoweverLittleIsDelivered)
{
    const std::u16string units = u"<a b='c'> text &amp; <![CDATA[ <x> ]]>y <!-- z --></a>";
    for (std::size_t most = 1; most < 20; ++most)
        EXPECT_EQ(TokensOf(units, most), TokensOf(units)) << most;
}

TEST(XMLStream, AZeroEndsTheInputForGood)
{
    XMLDocument document;
    UnitStream stream(&document, std::u16string(u"ab\0cd", 5));
    EXPECT_EQ(Tokens(stream), "1:ab ");
    EXPECT_FALSE(stream.Next());
    EXPECT_FALSE(stream.HasFailed());
}

TEST(XMLStream, ASectionIsOneTextThatEndsAtAZero)
{
    EXPECT_EQ(TokensOf(u"<![CDATA[<a>]]>]"), "1:<![CDATA[<a> 15:] ");
    EXPECT_EQ(TokensOf(std::u16string(u"<![CDATA[a\0b]]>]", 16)), "1:<![CDATA[a 15:] ");
}

// What is asked for shows where a source cuts a sequence of bytes in two.
TEST(XMLStream, AsksForWhatIsFreeBehindTheTokenInHand)
{
    XMLDocument document;
    UnitStream stream(&document, std::u16string(4000, u' ') + Xs(200) + u" y");
    Tokens(stream);
    EXPECT_EQ(stream.Asked, (std::vector<std::size_t>{4096, 4000, 4095, 4096}));
}

TEST(XMLStream, DoublesTheBufferForALongToken)
{
    XMLDocument document;
    UnitStream stream(&document, Xs(3 * 4096) + u" ");
    EXPECT_EQ(stream.BufferEnd - stream.Buffer, 4096);
    Tokens(stream);
    EXPECT_EQ(stream.BufferEnd - stream.Buffer, 16384);
    EXPECT_EQ(stream.Asked, (std::vector<std::size_t>{4096, 4096, 8192, 16384}));
}

TEST(XMLStream, GrowsByWhatItHolds)
{
    XMLDocument document;
    UnitStream stream(&document, u"  " + Xs(9000));
    Tokens(stream);
    EXPECT_EQ(stream.Asked, (std::vector<std::size_t>{4096, 4094, 8188, 9000, 18000}));
}

TEST(XMLStream, LooksThirteenUnitsAheadAtAnOpeningBracket)
{
    for (std::size_t left = 1; left <= 16; ++left) {
        XMLDocument document;
        UnitStream stream(&document, std::u16string(4096 - left, u' ') + u"<" + Xs(100));
        for (std::size_t count = 0; count < 4096 - left; ++count)
            stream.Next();
        EXPECT_EQ(stream.Asked.size(), 1u);
        EXPECT_EQ(stream.Next().Type, u32{XMLOpenBracketToken});
        EXPECT_EQ(stream.Asked.size(), left < 13 ? 2u : 1u) << left;
    }
}

TEST(XMLStream, ATokenMayFillTheLargestBufferButNotPassIt)
{
    for (const std::size_t length : {Limits::TokenUnits - 1, Limits::TokenUnits, Limits::TokenUnits + 1}) {
        XMLDocument document;
        UnitStream stream(&document, Xs(length) + u" ");
        const XMLSpan token = stream.Next();
        const bool fits = length < Limits::TokenUnits;
        EXPECT_EQ(token.Units.size(), fits ? length : 0);
        EXPECT_EQ(stream.HasFailed(), !fits);
        EXPECT_STREQ(document.ErrorText, fits ? "Unknown Error" : "Memory allocation failed");
        if (!fits) {
            EXPECT_FALSE(stream.Next());
        }
    }
}

TEST(XMLStream, ASectionIsHeldToTheSameSize)
{
    XMLDocument document;
    UnitStream stream(&document, u"<![CDATA[" + Xs(Limits::TokenUnits) + u"]]>");
    EXPECT_FALSE(stream.Next());
    EXPECT_STREQ(document.ErrorText, "Memory allocation failed");
}

TEST(XMLStream, TakesRunsOnlyUpToTheTokenThatNeedsMoreInput)
{
    XMLDocument document;
    UnitStream stream(&document, u"ab cd" + std::u16string(4089, u' ') + u"ef");
    EXPECT_EQ(stream.TakeUntil(XMLUnit::EndsContent), u"");
    EXPECT_EQ(stream.Next().Units, u"ab");
    EXPECT_EQ(stream.TakeUntil(XMLUnit::EndsContent).size(), 4092u);
    EXPECT_EQ(stream.Next().Units, u"ef");
}

TEST(XMLStream, ShortCutsTakeNothingWhereTheyDoNotApply)
{
    XMLDocument document;
    UnitStream stream(&document, u" a>b");
    EXPECT_EQ(stream.TakeText(), u"");
    EXPECT_FALSE(stream.TakeCharacter(u' '));
    EXPECT_TRUE(stream.Next().IsSpace());
    EXPECT_FALSE(stream.TakeCharacter(u'>'));
    EXPECT_EQ(stream.TakeText(), u"a");
    EXPECT_FALSE(stream.TakeTagBegin());
    EXPECT_TRUE(stream.TakeCharacter(u'>'));
    EXPECT_EQ(stream.TakeText(), u"");
    EXPECT_EQ(stream.Next().Units, u"b");
}

TEST(XMLStream, KnowsWhenItHoldsNothingButAscii)
{
    XMLDocument document;
    UnitStream stream(&document, std::u16string(4090, u' ') + u"xxxxxx\u00E4 " + std::u16string(9000, u' '));
    stream.Next();
    EXPECT_TRUE(stream.HoldsOnlyAscii());
    while (stream.Next().Type != XMLTextToken) { }
    EXPECT_FALSE(stream.HoldsOnlyAscii());
    while (stream.Next()) { }
    EXPECT_TRUE(stream.HoldsOnlyAscii());
}

TEST(XMLToken, ATextIsItsOwnAndACharacterIsAConstant)
{
    XMLToken token;
    EXPECT_STREQ(token.Text, "");
    std::u16string units = u"t\u00E4";
    token.Set({XMLTextToken, units});
    units.assign(2, u'#');
    EXPECT_STREQ(token.Text, "t\xC3\xA4");
    EXPECT_EQ(token.Length, 3u);
    EXPECT_EQ(token.Type, u32{XMLTextToken});
    token.Set({XMLLineSpaceToken, u"\t"});
    EXPECT_STREQ(token.Text, "\t");
    EXPECT_EQ(token.Length, 1u);
    token.Clear();
    EXPECT_STREQ(token.Text, "");
    EXPECT_EQ(token.Type, u32{XMLNoToken});
}

TEST(XMLBuffer, DeliversAllItsBytesAndThenNone)
{
    XMLDocument document;
    XMLBuffer buffer(&document,
        "ab\xC3\xA4"
        "cd");
    char16_t units[8];
    EXPECT_EQ(buffer.Read(units, 3), 3u);
    EXPECT_EQ(std::u16string(units, 3), u"ab\uFFFD");
    EXPECT_EQ(buffer.Position, 3u);
    EXPECT_EQ(buffer.Read(units, 8), 3u);
    EXPECT_EQ(std::u16string(units, 3), u"\uFFFDcd");
    EXPECT_EQ(buffer.Read(units, 8), 0u);
    EXPECT_EQ(buffer.InputBytes, 6u);
}

TEST(XMLBuffer, ASequenceAcrossTwoReadsBecomesReplacements)
{
    for (const std::string character : {"\xC3\xA4", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"})
        for (std::size_t place = 4090; place <= 4100; ++place) {
            const std::string bytes = std::string(place, ' ') + character + " ";
            XMLDocument document;
            XMLBuffer buffer(&document, bytes);
            std::string text;
            for (XMLSpan token = buffer.Next(); token; token = buffer.Next())
                if (token.Type == XMLTextToken)
                    text += ToUtf8(token.Units);
            const std::size_t before = place < 4096 ? std::min<std::size_t>(4096 - place, character.size()) : 0;
            const bool isCut = before > 0 && before < character.size();
            // What is left of it begins no character, so that each byte of it counts by itself.
            std::string expected = character;
            if (isCut) {
                expected = "\xEF\xBF\xBD";
                for (std::size_t index = before; index < character.size(); ++index)
                    expected += "\xEF\xBF\xBD";
            }
            EXPECT_EQ(text, expected) << place;
        }
}
