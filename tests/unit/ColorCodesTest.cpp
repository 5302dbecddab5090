#include "teskara/element/ColorCodes.h"
#include "teskara/element/TeskElement.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

constexpr u32 FontColor = 0x80123456;

struct Applied {
    u32 Color;
    std::string Rest;
};

Applied Apply(const std::string& piece)
{
    ColorCodes::Stack colors;
    u32 color = FontColor;
    const char* rest = colors.Apply(piece.c_str(), color);
    return {color, rest};
}

std::string Strip(const std::string& text)
{
    std::string stripped(text.size() + 1, '?');
    TeskElement::StripColor(text.c_str(), stripped.data());
    return stripped.c_str();
}

} // namespace

TEST(ColorCodes, EachLetterHasABrightAndADarkColor)
{
    struct Row {
        char Letter;
        u32 Bright;
        u32 Dark;
    };
    constexpr Row rows[] = {
        {'b', 0x00000000, 0x00000000},
        {'g', 0xff00ff00, 0xff009900},
        {'m', 0xffff00ff, 0xff990099},
        {'o', 0xffff9900, 0xff996600},
        {'p', 0xff9900ff, 0xff660099},
        {'r', 0xffff0000, 0xff990000},
        {'t', 0xff00ffff, 0xff009999},
        {'u', 0xff0000ff, 0xff000099},
        {'w', 0xffffffff, 0xff999999},
        {'y', 0xffffff00, 0xff999900},
    };
    for (const Row& row : rows) {
        const Applied bright = Apply(std::string(1, row.Letter) + "text");
        EXPECT_EQ(row.Bright, bright.Color) << row.Letter;
        EXPECT_EQ("text", bright.Rest) << row.Letter;
        const Applied dark = Apply("-" + std::string(1, row.Letter) + "text");
        EXPECT_EQ(row.Dark, dark.Color) << row.Letter;
        EXPECT_EQ("text", dark.Rest) << row.Letter;
    }
}

TEST(ColorCodes, SixDigitsMakeAnyOpaqueColor)
{
    const Applied applied = Apply("#12aBfFtext");
    EXPECT_EQ(0xff12abffu, applied.Color);
    EXPECT_EQ("text", applied.Rest);
    EXPECT_EQ(0xffafafafu, Apply("#AFafAF").Color);
    EXPECT_EQ(0xff909090u, Apply("#909090").Color);
}

TEST(ColorCodes, DigitsThatAreNoneCountAsZero)
{
    EXPECT_EQ(0xff10f00fu, Apply("#1zf-0f").Color);
}

TEST(ColorCodes, WhatTheEndOfTheTextCutsOffCountsAsNotThere)
{
    EXPECT_EQ("", Apply("#12").Rest);
    EXPECT_EQ(0xff120000u, Apply("#12").Color);
    EXPECT_EQ("-", Apply("-").Rest);
    EXPECT_EQ(FontColor, Apply("-").Color);
    EXPECT_EQ("", Apply("").Rest);
}

TEST(ColorCodes, AnyOtherLetterIsTextAndChangesNothing)
{
    for (const char* piece : {"Red", "zap", "-z", " r", "1"}) {
        EXPECT_EQ(FontColor, Apply(piece).Color) << piece;
        EXPECT_EQ(piece, Apply(piece).Rest);
    }
}

TEST(ColorCodes, XGoesBackToTheColorBefore)
{
    ColorCodes::Stack colors;
    u32 color = FontColor;
    colors.Apply("r", color);
    colors.Apply("g", color);
    colors.Apply("x", color);
    EXPECT_EQ(0xffff0000u, color);
    colors.Apply("x", color);
    EXPECT_EQ(FontColor, color);
    colors.Apply("x", color);
    EXPECT_EQ(FontColor, color);
}

TEST(ColorCodes, ColorsBeyondTheStackAreUsedButNotRemembered)
{
    constexpr int places = 128;
    for (const int count : {places - 1, places, places + 1, 100000}) {
        ColorCodes::Stack colors;
        u32 color = FontColor;
        for (int push = 0; push < count; ++push)
            colors.Apply("r", color);
        colors.Apply("g", color);
        EXPECT_EQ(0xff00ff00u, color);
        for (int pop = 1; pop < std::min(count + 1, places); ++pop)
            colors.Apply("x", color);
        EXPECT_EQ(0xffff0000u, color) << count;
        colors.Apply("x", color);
        EXPECT_EQ(FontColor, color) << count;
        colors.Apply("x", color);
        EXPECT_EQ(FontColor, color) << count;
    }
}

TEST(ColorCodes, LengthAndTextWithoutCodes)
{
    struct Row {
        const char* Text;
        const char* Stripped;
    };
    constexpr Row rows[] = {
        {"plain", "plain"},
        {"", ""},
        {"\arab\axcd", "abcd"},
        {"a\a-rb", "ab"},
        {"a\a#ff00ffb", "ab"},
        {"a\azb", "ab"},
        {"a\a\ab", "ab"},
        {"a\a", "a"},
        {"a\a-", "a"},
        {"a\a#", "a"},
        {"a\a#ff", "a"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(row.Stripped, Strip(row.Text)) << row.Text;
        EXPECT_EQ(std::string(row.Stripped).size(), TeskElement::ColorStrlen(row.Text)) << row.Text;
    }
    EXPECT_EQ(0u, TeskElement::ColorStrlen(nullptr));
}
