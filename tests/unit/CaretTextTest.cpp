#include "teskara/text/CaretText.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr u64 Room = 5;

// The bytes with the caret as a bar between them.
std::string Shown(const CaretText& text)
{
    std::string shown(text.Bytes(), static_cast<std::size_t>(text.TextLength));
    return shown.insert(static_cast<std::size_t>(text.Caret()), "|");
}

CaretText Line(std::string_view bytes, u64 caret, u64 room = Room)
{
    CaretText text;
    text.Reserve(room);
    text.Fill(bytes, room);
    text.CaretPos = caret;
    return text;
}

void Type(CaretText& text, std::string_view bytes, u64 limit = Room)
{
    for (const char byte : bytes)
        text.Insert(byte, limit);
}

} // namespace

TEST(CaretText, WithoutRoomItHoldsNothing)
{
    CaretText text;
    EXPECT_EQ(nullptr, text.Bytes());
    EXPECT_STREQ("", text.From(0));
    EXPECT_FALSE(text.Insert('a', 10));
    EXPECT_FALSE(text.Backspace());
    EXPECT_FALSE(text.Delete());
    text.Set("abc", 10);
    text.Fill("abc", 10);
    text.MoveRight();
    text.Clear();
    EXPECT_EQ(0u, text.TextLength);
    EXPECT_EQ(0u, text.CaretPos);
}

TEST(CaretText, ReservingEmptiesItAndKeepsTheMode)
{
    CaretText text = Line("abc", 2);
    text.InsertMode = false;
    text.Reserve(2);
    EXPECT_EQ("|", Shown(text));
    EXPECT_FALSE(text.InsertMode);
    Type(text, "xyz", 10);
    EXPECT_EQ("xy|", Shown(text));
}

TEST(CaretText, BytesGoInAtTheCaret)
{
    CaretText text = Line("", 0);
    Type(text, "ac");
    EXPECT_EQ("ac|", Shown(text));
    text.CaretPos = 1;
    EXPECT_TRUE(text.Insert('b', Room));
    EXPECT_EQ("ab|c", Shown(text));
    EXPECT_STREQ("abc", text.Bytes());
}

TEST(CaretText, TypingFillsTheWholeRoom)
{
    CaretText text = Line("", 0);
    Type(text, "abcdef");
    EXPECT_EQ("abcde|", Shown(text));
    EXPECT_FALSE(text.Insert('g', Room));
    EXPECT_STREQ("abcde", text.Bytes());
}

TEST(CaretText, AFullLineLosesItsLastByte)
{
    CaretText text = Line("abcde", 1);
    EXPECT_TRUE(text.Insert('X', Room));
    EXPECT_EQ("aX|bcd", Shown(text));
    text.CaretPos = 4;
    EXPECT_TRUE(text.Insert('Y', Room));
    EXPECT_EQ("aXbcY|", Shown(text));
    EXPECT_STREQ("aXbcY", text.Bytes());
}

TEST(CaretText, OverwritingPutsBytesInThePlaceOfOthersAndAppendsAtTheEnd)
{
    CaretText text = Line("abc", 1);
    text.InsertMode = false;
    Type(text, "XY");
    EXPECT_EQ("aXY|", Shown(text));
    Type(text, "Z");
    EXPECT_EQ("aXYZ|", Shown(text));
    Type(text, "QR");
    EXPECT_EQ("aXYZQ|", Shown(text));
    EXPECT_FALSE(text.Insert('S', Room));
}

TEST(CaretText, ALimitAboveTheRoomIsTheRoom)
{
    CaretText text = Line("", 0);
    Type(text, "abcdefgh", 4096);
    EXPECT_EQ("abcde|", Shown(text));
    text.CaretPos = 0;
    Type(text, "XYZ", 4096);
    EXPECT_EQ("XYZ|ab", Shown(text));
    text.Set("abcdefgh", 4096);
    EXPECT_STREQ("abcd", text.Bytes());
}

TEST(CaretText, ALoweredLimitStopsTheCaretAndLeavesTheText)
{
    CaretText text = Line("abcde", 3);
    EXPECT_FALSE(text.Insert('X', 3));
    EXPECT_EQ("abc|de", Shown(text));
    text.CaretPos = 2;
    EXPECT_TRUE(text.Insert('X', 3));
    EXPECT_EQ("abX|cd", Shown(text));
    text.InsertMode = false;
    text.CaretPos = 0;
    EXPECT_TRUE(text.Insert('Y', 1));
    EXPECT_FALSE(text.Insert('Y', 1));
    EXPECT_EQ("Y|bXcd", Shown(text));
}

TEST(CaretText, WithALimitOfZeroNothingGoesIn)
{
    CaretText text = Line("abc", 0);
    EXPECT_FALSE(text.Insert('X', 0));
    EXPECT_EQ("|abc", Shown(text));
    text.Set("xyz", 0);
    EXPECT_EQ("|", Shown(text));
}

TEST(CaretText, BackspaceTakesTheByteBefore)
{
    CaretText text = Line("abc", 2);
    EXPECT_TRUE(text.Backspace());
    EXPECT_EQ("a|c", Shown(text));
    text.MoveToEnd();
    EXPECT_TRUE(text.Backspace());
    EXPECT_EQ("a|", Shown(text));
    EXPECT_TRUE(text.Backspace());
    EXPECT_FALSE(text.Backspace());
    EXPECT_STREQ("", text.Bytes());
}

TEST(CaretText, DeleteTakesTheByteBehind)
{
    CaretText text = Line("abc", 1);
    EXPECT_TRUE(text.Delete());
    EXPECT_EQ("a|c", Shown(text));
    EXPECT_TRUE(text.Delete());
    EXPECT_FALSE(text.Delete());
    EXPECT_EQ("a|", Shown(text));
    text.Clear();
    EXPECT_FALSE(text.Delete());
}

TEST(CaretText, SettingKeepsLessThanTheLimit)
{
    CaretText text = Line("", 0, 10);
    text.Set("abcd", 5);
    EXPECT_STREQ("abcd", text.Bytes());
    text.Set("abcde", 5);
    EXPECT_STREQ("abcd", text.Bytes());
    text.Fill("abcdefg", 5);
    EXPECT_STREQ("abcde", text.Bytes());
    EXPECT_EQ(5u, text.TextLength);
}

TEST(CaretText, SettingOnlyLowersTheCaret)
{
    CaretText text = Line("abcde", 4);
    text.Set("xy", Room);
    EXPECT_EQ("xy|", Shown(text));
    text.CaretPos = 1;
    text.Set("abcd", Room);
    EXPECT_EQ("a|bcd", Shown(text));
}

TEST(CaretText, ItMayBeSetToAPartOfItself)
{
    CaretText text = Line("abcde", 0);
    text.Set(text.From(1), Room);
    EXPECT_STREQ("bcde", text.Bytes());
    text.Set(text.Bytes(), Room);
    EXPECT_STREQ("bcde", text.Bytes());
}

TEST(CaretText, TheCaretStaysInTheText)
{
    CaretText text = Line("ab", 0);
    text.MoveLeft();
    EXPECT_EQ("|ab", Shown(text));
    text.MoveRight();
    text.MoveRight();
    text.MoveRight();
    EXPECT_EQ("ab|", Shown(text));
    text.MoveLeft();
    EXPECT_EQ("a|b", Shown(text));
    text.MoveToStart();
    EXPECT_EQ("|ab", Shown(text));
    text.MoveToEnd();
    EXPECT_EQ("ab|", Shown(text));
}

TEST(CaretText, ACaretSetBeyondTheTextCountsAsItsEnd)
{
    for (const u64 beyond : {u64{3}, ~u64{0}}) {
        CaretText text = Line("ab", beyond);
        EXPECT_EQ(2u, text.Caret());
        EXPECT_FALSE(text.Delete());
        EXPECT_TRUE(text.Insert('c', Room));
        EXPECT_EQ("abc|", Shown(text));
        text.CaretPos = beyond;
        text.MoveLeft();
        EXPECT_EQ("ab|c", Shown(text));
        text.CaretPos = beyond;
        EXPECT_TRUE(text.Backspace());
        EXPECT_EQ("ab|", Shown(text));
    }
}

TEST(CaretText, AZeroByteEndsTheWayToTheRight)
{
    CaretText text = Line("", 0);
    Type(text, {"a\0b", 3});
    EXPECT_EQ(3u, text.TextLength);
    text.MoveToStart();
    text.MoveRight();
    text.MoveRight();
    EXPECT_EQ(1u, text.CaretPos);
    EXPECT_TRUE(text.Delete());
    EXPECT_STREQ("ab", text.Bytes());
}

TEST(CaretText, WhatFollowsAPlaceBeyondTheEndIsEmpty)
{
    const CaretText text = Line("abc", 0);
    EXPECT_STREQ("bc", text.From(1));
    EXPECT_STREQ("", text.From(3));
    EXPECT_STREQ("", text.From(~u64{0}));
}
