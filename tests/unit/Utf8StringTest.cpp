#include "teskara/core/utf8string.h"

#include <gtest/gtest.h>

#include <string>

TEST(Utf8String, AMapOfNamesFindsThemInAnyCase)
{
    NameMap<int> names;
    names.emplace("Button", 1);
    EXPECT_EQ(1u, names.count(std::string_view("BUTTON")));
    EXPECT_EQ(1u, names.count(std::string_view("button")));
    EXPECT_EQ(0u, names.count(std::string_view("buttons")));
    EXPECT_EQ(0u, names.count(std::string_view("")));
}

TEST(Utf8String, ANameKeepsTheSpellingItWasMadeWith)
{
    NameMap<int> names;
    names.emplace("Button", 1);
    EXPECT_FALSE(names.emplace("BUTTON", 2).second);
    EXPECT_EQ("Button", names.begin()->first.Text());
    EXPECT_EQ(1, names.begin()->second);
}

TEST(Utf8String, OnlyLettersOfAsciiHaveACase)
{
    const NameHash hash;
    const NameEqual equal;
    for (int code = 0; code < 256; ++code) {
        const bool isUpper = code >= 'A' && code <= 'Z';
        const char character = static_cast<char>(code);
        for (const std::size_t length : {1u, 3u, 7u, 8u, 9u, 15u, 16u, 17u}) {
            const std::string name = std::string(length - 1, 'x') + character;
            const std::string other = std::string(length - 1, 'X') + static_cast<char>(code ^ 0x20);
            const bool isLetter = isUpper || (code >= 'a' && code <= 'z');
            EXPECT_EQ(isLetter, equal(name, other)) << code;
            EXPECT_EQ(isLetter, hash(name) == hash(other)) << code << " at length " << length;
        }
    }
}

TEST(Utf8String, NamesOfTheSameFoldedBytesHashAlikeAtEveryLength)
{
    const NameHash hash;
    std::string lower;
    std::string upper;
    for (int length = 0; length < 70; ++length) {
        EXPECT_EQ(hash(lower), hash(upper)) << length;
        lower += static_cast<char>('a' + length % 26);
        upper += static_cast<char>('A' + length % 26);
    }
}

TEST(Utf8String, NamesMayHoldAnyByte)
{
    NameMap<int> names;
    const std::string name("a\0b\xc3\xa4", 5);
    names.emplace(name, 1);
    EXPECT_EQ(1u, names.count(std::string_view("A\0B\xc3\xa4", 5)));
    EXPECT_EQ(0u, names.count(std::string_view("A\0B\xc3\x84", 5)));
    EXPECT_EQ(0u, names.count(std::string_view("A")));
}
