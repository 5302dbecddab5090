#include "teskara/markup/XMLHelper.h"
#include "teskara/markup/ElementPosition.h"
#include "teskara/markup/XMLDocument.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// A node whose attribute "v" and whose child "v" both hold a text.
class XMLHelperTest : public testing::Test
{
protected:
    XMLNode* Parse(const std::string& markup)
    {
        m_Document.Reset();
        EXPECT_TRUE(m_Document.ParseBuffer(markup.c_str())) << markup;
        return m_Document.Root->FirstChild;
    }

    XMLNode* With(const std::string& text) { return Parse("<n v='" + text + "'><v>" + text + "</v></n>"); }

    // The three forms of absence; the last has the attribute and not the child.
    XMLNode* const None = nullptr;

    ElementPosition Position{77, 88};
    float Factor = 9;
    unsigned int Value = 66;

private:
    XMLDocument m_Document;
};

} // namespace

TEST_F(XMLHelperTest, WalkersFollowTheLinks)
{
    XMLNode* const node = Parse("<n><a/><b/></n>");
    EXPECT_EQ(XMLHelper::GetFirstChild(node), node->FirstChild);
    EXPECT_EQ(XMLHelper::GetNext(node->FirstChild), node->LastChild);
    EXPECT_EQ(XMLHelper::GetPrev(node->LastChild), node->FirstChild);
    EXPECT_EQ(XMLHelper::GetParent(node->FirstChild), node);
}

TEST_F(XMLHelperTest, WalkersAnswerNullForNull)
{
    EXPECT_EQ(XMLHelper::GetFirstChild(None), nullptr);
    EXPECT_EQ(XMLHelper::GetNext(None), nullptr);
    EXPECT_EQ(XMLHelper::GetPrev(None), nullptr);
    EXPECT_EQ(XMLHelper::GetParent(None), nullptr);
}

TEST_F(XMLHelperTest, TheTextOfANodeIsItsName)
{
    XMLNode* const node = Parse("<n>text</n>");
    EXPECT_STREQ(XMLHelper::GetText(node), "n");
    EXPECT_STREQ(XMLHelper::GetText(node->FirstChild), "text");
    EXPECT_STREQ(XMLHelper::GetText(None), "");
}

TEST_F(XMLHelperTest, AChildIsTheFirstElementOfItsNameInAnyCase)
{
    XMLNode* const node = Parse("<n>Texture<!--Texture--><x/><Texture a='1'/><TEXTURE a='2'/></n>");
    constexpr TagName Tag("tExture");
    EXPECT_STREQ(XMLHelper::GetStringAttribute(XMLHelper::GetChild(node, "TEXTURE"), "a", ""), "1");
    EXPECT_EQ(XMLHelper::GetChild(node, Tag), XMLHelper::GetChild(node, "texture"));
    EXPECT_EQ(XMLHelper::GetChild(node, "Texture", FoldedHash("Texture")), XMLHelper::GetChild(node, "texture"));
    EXPECT_EQ(XMLHelper::GetChild(node, "Textures"), nullptr);
    EXPECT_EQ(XMLHelper::GetChild(node, ""), nullptr);
    EXPECT_EQ(XMLHelper::GetChild(None, "Texture"), nullptr);
}

TEST_F(XMLHelperTest, ACommentWithTheSoughtNameIsPassedOver)
{
    EXPECT_EQ(XMLHelper::GetChild(Parse("<n><!--Width--></n>"), "Width"), nullptr);
}

TEST_F(XMLHelperTest, AbsenceGivesTheDefault)
{
    XMLNode* const empty = Parse("<n><other/></n>");
    for (XMLNode* node : {None, empty}) {
        EXPECT_STREQ(XMLHelper::GetStringAttribute(node, "v", "d"), "d");
        EXPECT_EQ(XMLHelper::GetStringValue(node, "v", nullptr), nullptr);
        EXPECT_EQ(XMLHelper::GetIntAttribute(node, "v", 5), 5u);
        EXPECT_EQ(XMLHelper::GetIntValue(node, "v", 5), 5u);
        EXPECT_EQ(XMLHelper::GetFloatAttribute(node, "v", 0.25f), 0.25f);
        EXPECT_EQ(XMLHelper::GetFloatValue(node, "v", 0.25f), 0.25f);
        EXPECT_EQ(XMLHelper::GetHexAttribute(node, "v", 0xAB), 0xABu);
        EXPECT_EQ(XMLHelper::GetHexValue(node, "v", 0xAB), 0xABu);
        EXPECT_TRUE(XMLHelper::GetToggle(node, "v", true));
        EXPECT_FALSE(XMLHelper::GetToggle(node, "v", false));
    }
}

TEST_F(XMLHelperTest, AnEmptyAttributeGivesTheDefault)
{
    XMLNode* const node = Parse("<n v=''/>");
    EXPECT_STREQ(XMLHelper::GetStringAttribute(node, "v", "d"), "d");
    EXPECT_EQ(XMLHelper::GetIntAttribute(node, "v", 5), 5u);
    EXPECT_EQ(XMLHelper::GetFloatAttribute(node, "v", 0.25f), 0.25f);
    EXPECT_EQ(XMLHelper::GetHexAttribute(node, "v", 0xAB), 0xABu);
    EXPECT_EQ(XMLHelper::GetFactorAttribute(node, "v", Factor, 5), 5u);
    EXPECT_EQ(Factor, 0);
    EXPECT_EQ(XMLHelper::GetElementPositionAttribute(node, "v", Position, 5), 5u);
    EXPECT_EQ(Position.Type, 0u);
    EXPECT_EQ(Position.Factor, 5u);
}

TEST_F(XMLHelperTest, AnEmptyChildGivesZeroAndSwitchesOn)
{
    for (const char* markup : {"<n><v/></n>", "<n><V></V></n>"}) {
        XMLNode* const node = Parse(markup);
        EXPECT_STREQ(XMLHelper::GetStringValue(node, "v", "d"), "");
        EXPECT_EQ(XMLHelper::GetIntValue(node, "v", 5), 0u);
        EXPECT_EQ(XMLHelper::GetFloatValue(node, "v", 0.25f), 0.0f);
        EXPECT_EQ(XMLHelper::GetHexValue(node, "v", 0xAB), 0u);
        EXPECT_TRUE(XMLHelper::GetToggle(node, "v", false));
    }
}

TEST_F(XMLHelperTest, AnEmptyChildLeavesFactorAndPosition)
{
    XMLNode* const node = Parse("<n><v/></n>");
    EXPECT_EQ(XMLHelper::GetFactorValue(node, "v", Factor, 5), 0u);
    EXPECT_EQ(Factor, 9);
    EXPECT_EQ(XMLHelper::GetElementPositionValue(node, "v", Position, 5), 0u);
    EXPECT_EQ(Position.Type, 77u);
    EXPECT_EQ(Position.Factor, 88u);
}

TEST_F(XMLHelperTest, TheValueIsTheFirstChildWhateverItIs)
{
    EXPECT_STREQ(XMLHelper::GetStringValue(Parse("<n><v><!--c-->5</v></n>"), "v", "d"), "c");
    EXPECT_STREQ(XMLHelper::GetStringValue(Parse("<n><v><w/>5</v></n>"), "v", "d"), "w");
    EXPECT_EQ(XMLHelper::GetIntValue(Parse("<n><v>\n<w/>5</v></n>"), "v", 5), 0u);
    EXPECT_FALSE(XMLHelper::GetToggle(Parse("<n><v><!----></v></n>"), "v", true));
}

TEST_F(XMLHelperTest, IntegersReadUpToTheFirstOtherCharacter)
{
    const struct {
        const char* Text;
        unsigned int Value;
    } table[] = {{"12abc", 12}, {" 7", 7}, {"-1", 0xFFFFFFFF}, {"+3", 3}, {"x", 0}, {"4294967297", 1}, {"0x10", 0}};
    for (const auto& row : table) {
        XMLNode* const node = With(row.Text);
        EXPECT_EQ(XMLHelper::GetIntAttribute(node, "V", 5), row.Value) << row.Text;
        EXPECT_EQ(XMLHelper::GetIntValue(node, "V", 5), row.Value) << row.Text;
    }
}

TEST_F(XMLHelperTest, FloatsAndHexadecimalsAndTextsReadAlikeInBothForms)
{
    EXPECT_EQ(XMLHelper::GetFloatAttribute(With("-1.5x"), "v", 9), -1.5f);
    EXPECT_EQ(XMLHelper::GetFloatValue(With("1e2"), "v", 9), 100.0f);
    EXPECT_EQ(XMLHelper::GetFloatValue(With("x"), "v", 9), 0.0f);
    EXPECT_EQ(XMLHelper::GetHexAttribute(With("FF102030"), "v", 9), 0xFF102030u);
    EXPECT_EQ(XMLHelper::GetHexValue(With("0xff"), "v", 9), 0xFFu);
    EXPECT_EQ(XMLHelper::GetHexAttribute(With("zz"), "v", 9), 0u);
    EXPECT_EQ(XMLHelper::GetHexValue(With("zz"), "v", 9), 0u);
    EXPECT_STREQ(XMLHelper::GetStringAttribute(With(" a b "), "v", "d"), " a b ");
    EXPECT_STREQ(XMLHelper::GetStringValue(With(" a b "), "v", "d"), " a b ");
}

TEST_F(XMLHelperTest, ATextBelongsToTheTree)
{
    XMLNode* const node = With("text");
    EXPECT_EQ(XMLHelper::GetStringValue(node, "v", ""), XMLHelper::GetChild(node, "v")->FirstChild->Name);
}

TEST_F(XMLHelperTest, OnlyNumbersSwitchOn)
{
    EXPECT_TRUE(XMLHelper::GetToggle(With("1"), "v", false));
    EXPECT_TRUE(XMLHelper::GetToggle(With("-5"), "v", false));
    EXPECT_FALSE(XMLHelper::GetToggle(With("0"), "v", true));
    EXPECT_FALSE(XMLHelper::GetToggle(With("true"), "v", true));
    EXPECT_FALSE(XMLHelper::GetToggle(With("yes"), "v", true));
}

TEST_F(XMLHelperTest, AFactorIsAShareOrPixels)
{
    const struct {
        const char* Text;
        float Factor;
        unsigned int Result;
    } table[] = {{"50%", 0.5f, 5}, {"0.5", 0.5f, 5}, {"50", 0, 50}, {"-5", 0, 0xFFFFFFFB}, {"12.5%", 0.125f, 5},
        {"x%", 0, 5}, {"x.", 0, 5}, {"0%", 0, 5}, {"5 %", 0.05f, 5}, {"r5", 0, 0}};
    for (const auto& row : table) {
        XMLNode* const node = With(row.Text);
        Factor = 9;
        EXPECT_EQ(XMLHelper::GetFactorAttribute(node, "v", Factor, 5), row.Result) << row.Text;
        EXPECT_EQ(Factor, row.Factor) << row.Text;
        Factor = 9;
        EXPECT_EQ(XMLHelper::GetFactorValue(node, "v", Factor, 5), row.Result) << row.Text;
        EXPECT_EQ(Factor, row.Factor) << row.Text;
    }
}

TEST_F(XMLHelperTest, AnAbsentFactorIsZero)
{
    EXPECT_EQ(XMLHelper::GetFactorAttribute(None, "v", Factor, 5), 5u);
    EXPECT_EQ(Factor, 0);
    Factor = 9;
    EXPECT_EQ(XMLHelper::GetFactorValue(Parse("<n/>"), "v", Factor, 5), 5u);
    EXPECT_EQ(Factor, 0);
}

TEST_F(XMLHelperTest, AnAbsentPositionIsTheDefaultInPixels)
{
    EXPECT_EQ(XMLHelper::GetElementPositionAttribute(None, "v", Position, 5), 5u);
    EXPECT_EQ(Position.Type, 0u);
    EXPECT_EQ(Position.Factor, 5u);
    Position = {77, 88};
    EXPECT_EQ(XMLHelper::GetElementPositionValue(Parse("<n/>"), "v", Position, 0xFFFFFFFF), 0xFFFFFFFFu);
    EXPECT_EQ(Position.Type, 0u);
    EXPECT_EQ(Position.Factor, 0xFFFFFFFFu);
}

TEST_F(XMLHelperTest, APositionIsPixelsAShareOrADistanceFromTheFarEdge)
{
    const struct {
        const char* Text;
        u32 Type;
        float Share;
        unsigned int Number;
    } table[] = {{"10", 0, 0, 10}, {"-5", 0, 0, 0xFFFFFFFB}, {"r10", 3, 0, 10}, {"R-10", 3, 0, 0xFFFFFFF6},
        {"r", 3, 0, 0}, {"rr5", 3, 0, 0}, {" r5", 0, 0, 0}, {"50%", 2, 0.5f, 0}, {"r50%", 2, 0.5f, 0},
        {"0.25", 2, 0.25f, 0}, {"R.5", 2, 0.5f, 0}, {"x", 0, 0, 0}, {"1.5%", 2, 0.015f, 0}};
    for (const auto& row : table) {
        XMLNode* const node = With(row.Text);
        const bool isShare = row.Type == 2;
        ElementPosition expected{row.Type, row.Number};
        if (isShare)
            expected.SetShare(row.Share);
        const auto check = [&](unsigned int result, unsigned int shareResult) {
            EXPECT_EQ(result, isShare ? shareResult : row.Number) << row.Text;
            EXPECT_EQ(Position.Type, expected.Type) << row.Text;
            EXPECT_EQ(Position.Factor, expected.Factor) << row.Text;
            Position = {77, 88};
        };
        check(XMLHelper::GetElementPositionAttribute(node, "v", Position, 5), 5);
        check(XMLHelper::GetElementPositionValue(node, "v", Position, 5), 5);
        EXPECT_TRUE(XMLHelper::GetElementPositionValueEx(node, "v", Position, Value)) << row.Text;
        check(Value, 0);
    }
}

TEST_F(XMLHelperTest, TheExtendedPositionTellsWhetherThereWasOne)
{
    for (XMLNode* node : {None, Parse("<n><v/></n>")}) {
        EXPECT_FALSE(XMLHelper::GetElementPositionValueEx(node, "v", Position, Value));
        EXPECT_FALSE(XMLHelper::GetElementPositionValueEx(node, "w", Position, Value));
        EXPECT_EQ(Position.Type, 77u);
        EXPECT_EQ(Position.Factor, 88u);
        EXPECT_EQ(Value, 66u);
    }
}
