#include "teskara/core/AsciiCase.h"

#include <gtest/gtest.h>

#include <string>

static_assert(FoldedHash("BackgroundColor") == FoldedHash("backgroundCOLOR"));
static_assert(FoldAscii('A') == 'a' && FoldAscii('[') == '[');

TEST(AsciiCase, FoldsLettersAndNothingElse)
{
    for (int byte = 0; byte < 256; ++byte) {
        const char character = static_cast<char>(byte);
        const bool isUpper = byte >= 'A' && byte <= 'Z';
        EXPECT_EQ(FoldAscii(character), isUpper ? static_cast<char>(byte + 32) : character) << byte;
    }
    std::string text = "\xC3\x84"
                       "BC@[`{z";
    FoldAscii(text);
    EXPECT_EQ(text,
        "\xC3\x84"
        "bc@[`{z");
}

TEST(AsciiCase, NamesThatDifferInCaseAloneAreEqual)
{
    EXPECT_TRUE(EqualsNoCase("Frame", "fRAME"));
    EXPECT_TRUE(EqualsNoCase("", ""));
    EXPECT_FALSE(EqualsNoCase("Frame", "Frames"));
    EXPECT_FALSE(EqualsNoCase("a{", "a["));
    EXPECT_FALSE(EqualsNoCase("\xC3\xA4", "\xC3\x84"));
}

TEST(AsciiCase, OrderIsByUnsignedFoldedBytes)
{
    EXPECT_EQ(CompareNoCase("ABC", "abc"), 0);
    EXPECT_LT(CompareNoCase("a", "B"), 0);
    EXPECT_LT(CompareNoCase("A", "b"), 0);
    EXPECT_GT(CompareNoCase("\x80", "z"), 0);
    EXPECT_LT(CompareNoCase("ab", "abc"), 0);
    EXPECT_GT(CompareNoCase("abc", "AB"), 0);
    EXPECT_LT(CompareNoCase("_", "a"), 0);
}

TEST(AsciiCase, HashesOfAllLengthsIgnoreCaseAndSeeEveryCharacter)
{
    for (std::size_t length = 0; length < 40; ++length) {
        const std::string lower(length, 'q');
        EXPECT_EQ(FoldedHash(lower), FoldedHash(std::string(length, 'Q'))) << length;
        for (std::size_t place = 0; place < length; ++place) {
            std::string other = lower;
            other[place] = 'r';
            EXPECT_NE(FoldedHash(lower), FoldedHash(other)) << length << " " << place;
        }
    }
    EXPECT_NE(FoldedHash("Width"), FoldedHash("Height"));
}
