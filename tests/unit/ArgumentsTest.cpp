#include "teskara/script/Arguments.h"

#include "teskara/core/CUIManager.h"
#include "teskara/core/Numbers.h"
#include "tests/unit/ToolkitTest.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// A list of one argument.
class One
{
public:
    explicit One(const char* text) : m_Text(text) { }
    Arguments operator*() const { return Arguments(1, &m_Text); }

private:
    const char* m_Text;
};

bool IsNumber(const char* text)
{
    return (*One(text)).IsNumber(0);
}

bool IsTrue(const char* text)
{
    return (*One(text)).IsTrue(0);
}

} // namespace

TEST(Arguments, WhatIsNotThereReadsAsTheEmptyText)
{
    const char* texts[] = {"one", nullptr};
    const Arguments arguments(2, texts);
    EXPECT_EQ(2, arguments.Count());
    EXPECT_STREQ("one", arguments.Text(0));
    EXPECT_STREQ("", arguments.Text(1));
    EXPECT_STREQ("", arguments.Text(2));
    EXPECT_STREQ("", arguments.Text(-1));
    EXPECT_TRUE(arguments.Has(1));
    EXPECT_FALSE(arguments.Has(2));
    EXPECT_FALSE(arguments.Has(-1));
}

TEST(Arguments, ANegativeCountAndAMissingListAreNone)
{
    const char* texts[] = {"one"};
    EXPECT_EQ(0, Arguments(-1, texts).Count());
    EXPECT_EQ(0, Arguments(3, nullptr).Count());
    EXPECT_STREQ("", Arguments(3, nullptr).Text(0));
}

TEST(Arguments, AnIntegerIsItsLeadingDigits)
{
    EXPECT_EQ(12, (*One("12.5")).Integer(0));
    EXPECT_EQ(-7, (*One("-7")).Integer(0));
    EXPECT_EQ(3, (*One(" 3 apples")).Integer(0));
    EXPECT_EQ(0, (*One("apples 3")).Integer(0));
    EXPECT_EQ(0, (*One("")).Integer(0));
    EXPECT_EQ(0, (*One("12")).Integer(1));
}

TEST(Arguments, AFloatReadsToTheFirstByteThatIsNoPartOfIt)
{
    EXPECT_FLOAT_EQ(0.5f, (*One("0.5x")).Float(0));
    EXPECT_FLOAT_EQ(-200.0f, (*One("-2e2")).Float(0));
    EXPECT_FLOAT_EQ(0.0f, (*One("x")).Float(0));
}

TEST(Arguments, AColourIsHexadecimalWithOrWithoutAPrefix)
{
    u32 color = 5;
    EXPECT_TRUE((*One("ff00FF00")).Color(0, color));
    EXPECT_EQ(0xff00ff00u, color);
    EXPECT_TRUE((*One("0x12")).Color(0, color));
    EXPECT_EQ(0x12u, color);
}

TEST(Arguments, WhatIsNotHexadecimalLeavesTheColour)
{
    u32 color = 5;
    EXPECT_FALSE((*One("red")).Color(0, color));
    EXPECT_FALSE((*One("")).Color(0, color));
    EXPECT_FALSE((*One("ff")).Color(1, color));
    EXPECT_EQ(5u, color);
}

TEST(Arguments, AWordIsComparedWithoutRegardToCase)
{
    EXPECT_TRUE((*One("CenTer")).IsWord(0, "center"));
    EXPECT_FALSE((*One("centers")).IsWord(0, "center"));
    EXPECT_FALSE((*One("cente")).IsWord(0, "center"));
    EXPECT_TRUE((*One(nullptr)).IsWord(0, ""));
}

TEST(Arguments, DigitsAndPointsBehindAnOptionalMinusAreANumber)
{
    for (const char* number : {"0", "12", "-12", "1.5", "-1.5", "1.2.3", ".", "-", "..", "-.", "007"})
        EXPECT_TRUE(IsNumber(number)) << number;
    for (const char* name : {"", "a", "1a", "--1", "+1", "1-", " 1", "1 ", "1e3", "0x10", "1,5"})
        EXPECT_FALSE(IsNumber(name)) << name;
}

TEST(Arguments, TheWordTrueAndNumbersOtherThanZeroAreTrue)
{
    for (const char* text : {"TRUE", "true", "tRuE", "1", "-1", "0.25", "2 apples"})
        EXPECT_TRUE(IsTrue(text)) << text;
    for (const char* text : {"", "FALSE", "yes", "0", "0.0", "-0", "truely", "true "})
        EXPECT_FALSE(IsTrue(text)) << text;
    EXPECT_FALSE(IsTrue(nullptr));
}

namespace {

class CalculatingHost : public TestHost
{
public:
    bool Calculate(const char* text, double& result) override
    {
        result = ReadDouble(text);
        return std::string(text) != "fail";
    }
};

} // namespace

TEST_F(ToolkitTest, AnArgumentIsCalculatedByTheHost)
{
    EXPECT_FALSE((*One("1")).Calculated(0)) << "a host that cannot calculate";

    CalculatingHost host;
    F1(&host);
    EXPECT_TRUE((*One("1")).Calculated(0));
    EXPECT_TRUE((*One("-0.5")).Calculated(0));
    EXPECT_FALSE((*One("0")).Calculated(0));
    EXPECT_FALSE((*One("")).Calculated(0));
    EXPECT_FALSE((*One("1")).Calculated(1));
    EXPECT_FALSE((*One("fail")).Calculated(0));
    F1(&Host);
}
