#include "teskara/core/Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr char16_t Bad = 0xFFFD;

std::string OfCharacter(char32_t character)
{
    std::u16string units;
    if (character < 0x10000) {
        units += static_cast<char16_t>(character);
    } else {
        units += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
        units += static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    }
    return ToUtf8(units);
}

} // namespace

TEST(Utf8, EveryCharacterGoesThereAndBack)
{
    for (char32_t character = 0; character < 0x110000; ++character) {
        if (character >= 0xD800 && character <= 0xDFFF)
            continue;
        const std::string bytes = OfCharacter(character);
        const std::size_t length = character < 0x80 ? 1 : character < 0x800 ? 2 : character < 0x10000 ? 3 : 4;
        ASSERT_EQ(bytes.size(), length) << static_cast<unsigned>(character);
        ASSERT_EQ(ToUtf8(ToUtf16(bytes)), bytes) << static_cast<unsigned>(character);
    }
}

TEST(Utf8, AnIllFormedPartBecomesOneReplacement)
{
    const struct {
        const char* Bytes;
        std::u16string Units;
    } table[] = {
        {"\x80", {Bad}},
        {"\xBF\xBF", {Bad, Bad}},
        {"\xC0\x80", {Bad, Bad}},
        {"\xC1\xBF", {Bad, Bad}},
        {"\xC3", {Bad}},
        {"\xC3"
         "a",
            {Bad, u'a'}},
        {"\xC3\xC3\xA4", {Bad, 0xE4}},
        {"\xE0\x80\xAF", {Bad, Bad, Bad}},
        {"\xE2\x82", {Bad}},
        {"\xE2\x82"
         "a",
            {Bad, u'a'}},
        {"\xED\xA0\x80", {Bad, Bad, Bad}},
        {"\xF0\x80\x80\x80", {Bad, Bad, Bad, Bad}},
        {"\xF0\x9F\x98", {Bad}},
        {"\xF0\x9F\x98\xF0\x9F\x98\x80", {Bad, 0xD83D, 0xDE00}},
        {"\xF4\x90\x80\x80", {Bad, Bad, Bad, Bad}},
        {"\xF5", {Bad}},
        {"\xFE\xFF", {Bad, Bad}},
    };
    for (const auto& row : table) {
        EXPECT_EQ(ToUtf16(row.Bytes), row.Units) << row.Bytes;
        EXPECT_EQ(Utf16Length(row.Bytes), row.Units.size()) << row.Bytes;
    }
}

TEST(Utf8, ALoneSurrogateBecomesAReplacement)
{
    EXPECT_EQ(ToUtf8(std::u16string{0xD83D}), "\xEF\xBF\xBD");
    EXPECT_EQ(ToUtf8(std::u16string{0xDE00, u'a'}),
        "\xEF\xBF\xBD"
        "a");
    EXPECT_EQ(ToUtf8(std::u16string{0xD83D, 0xD83D, 0xDE00}), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
}

// Blocks of 32 go a faster way: what is not ASCII must be seen at every place of one.
TEST(Utf8, LongTextsConvertAlikeWhereverTheyAreNotAscii)
{
    for (const char* character : {"\xC3\xA4", "\xE2\x82\xAC", "\xF0\x9F\x98\x80", "\xFF"})
        for (std::size_t place = 0; place < 100; ++place) {
            const std::string bytes = std::string(place, 'x') + character + std::string(100 - place, 'y');
            const std::u16string expected =
                std::u16string(place, u'x') + ToUtf16(character) + std::u16string(100 - place, u'y');
            ASSERT_EQ(ToUtf16(bytes), expected) << place;
            ASSERT_EQ(Utf16Length(bytes), expected.size());
            ASSERT_EQ(Utf8Length(expected), ToUtf8(expected).size());
            ASSERT_EQ(ToUtf16(ToUtf8(expected)), expected);
        }
}

TEST(Utf8, OnlyWholeCharactersThatFitAreWritten)
{
    const std::string bytes = "aa\xF0\x9F\x98\x80z";
    char16_t units[8] = {};
    EXPECT_EQ(Utf8ToUtf16(bytes, units, 2), 2u);
    EXPECT_EQ(Utf8ToUtf16(bytes, units, 3), 2u);
    EXPECT_EQ(units[2], 0);
    EXPECT_EQ(Utf8ToUtf16(bytes, units, 4), 4u);
    EXPECT_EQ(Utf8ToUtf16(bytes, units, 0), 0u);

    char narrow[8] = {};
    const std::u16string wide = ToUtf16(bytes);
    EXPECT_EQ(Utf16ToUtf8(wide, narrow, 5), 2u);
    EXPECT_EQ(narrow[2], 0);
    EXPECT_EQ(Utf16ToUtf8(wide, narrow, 6), 6u);
}

TEST(Utf8, NothingBecomesNothingAndSomethingNever)
{
    EXPECT_EQ(ToUtf16(""), u"");
    EXPECT_EQ(ToUtf8(u""), "");
    for (int byte = 0; byte < 256; ++byte)
        EXPECT_EQ(ToUtf16(std::string(1, static_cast<char>(byte))).size(), 1u);
    EXPECT_EQ(ToUtf16(std::string_view("a\0b", 3)).size(), 3u);
}
