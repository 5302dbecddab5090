#include "teskara/core/BoundedText.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

TEST(BoundedText, ACopyIsCutToTheBufferAndTerminated)
{
    for (const std::size_t length : {0u, 6u, 7u, 8u, 9u, 100u}) {
        char buffer[10];
        std::memset(buffer, '#', sizeof buffer);
        const std::size_t copied = CopyBounded(buffer, 8, std::string(length, 'x'));
        EXPECT_EQ(copied, std::min<std::size_t>(length, 7));
        EXPECT_EQ(std::string(buffer), std::string(copied, 'x'));
        EXPECT_EQ(buffer[8], '#');
    }
}

TEST(BoundedText, ABufferOfNoBytesStaysAsItIs)
{
    char byte = '#';
    EXPECT_EQ(CopyBounded(&byte, 0, "x"), 0u);
    EXPECT_EQ(FormatBounded(&byte, 0, "%s", "x"), 0u);
    EXPECT_EQ(byte, '#');
}

TEST(BoundedText, ATextMayBeCopiedWithinItsOwnBuffer)
{
    char buffer[16] = "0123456789";
    CopyBounded(buffer, sizeof buffer, std::string_view(buffer + 2));
    EXPECT_STREQ(buffer, "23456789");
    CopyBounded(buffer + 1, sizeof buffer - 1, std::string_view(buffer));
    EXPECT_STREQ(buffer, "223456789");
}

TEST(BoundedText, AFormattedTextIsCutToTheBufferAndTerminated)
{
    char buffer[2048];
    for (const std::size_t length : {2046u, 2047u, 2048u, 5000u}) {
        const std::size_t written = FormatBounded(buffer, sizeof buffer, "%s", std::string(length, 'x').c_str());
        EXPECT_EQ(written, std::min<std::size_t>(length, 2047));
        EXPECT_EQ(std::strlen(buffer), written);
    }
    EXPECT_EQ(FormatBounded(buffer, sizeof buffer, "%s is %d of %u%%", "%n%s", -1, 4000000000u), 25u);
    EXPECT_STREQ(buffer, "%n%s is -1 of 4000000000%");
}

TEST(BoundedText, AMissingTextPrintsAsAnEmptyOne)
{
    EXPECT_STREQ(TextOrEmpty(nullptr), "");
    EXPECT_STREQ(TextOrEmpty("x"), "x");
}
