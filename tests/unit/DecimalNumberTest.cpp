#include "teskara/core/DecimalNumber.h"

#include "teskara/core/Numbers.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <random>
#include <string>

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double Unset = -7;

double Read(const std::string& text)
{
    double value = Unset;
    EXPECT_EQ(ReadDecimalNumber(text, value), text.size()) << text;
    return value;
}

// A finite number, as likely tiny as large. To ask of a number whether it is one may trap.
double AnyNumber(std::mt19937_64& random)
{
    const u64 bits = static_cast<u64>(random()) >> 1;
    return bits < std::bit_cast<u64>(Infinity) ? std::bit_cast<double>(bits) : 1;
}

std::string PowerOfFive(int power)
{
    std::string digits = "1";
    for (; power > 0; --power) {
        int carry = 0;
        for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
            carry += (*digit - '0') * 5;
            *digit = static_cast<char>('0' + carry % 10);
            carry /= 10;
        }
        if (carry)
            digits.insert(digits.begin(), static_cast<char>('0' + carry));
    }
    return digits;
}

} // namespace

TEST(DecimalNumberTest, ANumberEndsBeforeWhatIsNoneOfIt)
{
    const struct {
        const char* Text;
        std::size_t Size;
        double Value;
    } table[] = {{"5", 1, 5}, {"5.", 2, 5}, {".5", 2, 0.5}, {"5.5.5", 3, 5.5}, {"5e", 1, 5}, {"5e+", 1, 5},
        {"5e-1x", 4, 0.5}, {"5E2", 3, 500}, {"5 ", 1, 5}, {"5,5", 1, 5}, {"0x10", 1, 0}, {"infinit", 3, Infinity},
        {"INFinity", 8, Infinity}, {"", 0, Unset}, {".", 0, Unset}, {"e5", 0, Unset}, {".e5", 0, Unset},
        {"-5", 0, Unset}, {" 5", 0, Unset}, {"in", 0, Unset}, {"na", 0, Unset}};
    for (const auto& row : table) {
        double value = Unset;
        EXPECT_EQ(ReadDecimalNumber(row.Text, value), row.Size) << row.Text;
        EXPECT_EQ(value, row.Value) << row.Text;
    }
    EXPECT_TRUE(std::isnan(Read("NaN")));
}

TEST(DecimalNumberTest, TheValueIsTheNearestAndOfTwoTheEvenOne)
{
    const struct {
        const char* Text;
        double Value;
    } table[] = {{"0.1", 0x1.999999999999ap-4}, {"123456789012345678", 0x1.b69b4ba630f35p56},
        {"1e23", 0x1.52d02c7e14af6p76}, {"8.5e-22", 0x1.00e59088c6a6ap-70}, {"9007199254740993", 9007199254740992.0},
        {"9007199254740993.000000000000000000000000000001", 9007199254740994.0},
        {"9007199254740995", 9007199254740996.0}, {"2.2250738585072011e-308", 0x0.fffffffffffffp-1022},
        {"2.2250738585072014e-308", 0x1p-1022}, {"4.9e-324", 0x1p-1074}, {"2.4703282292062327e-324", 0},
        {"2.4703282292062328e-324", 0x1p-1074}, {"1.7976931348623157e308", 0x1.fffffffffffffp1023},
        {"1.7976931348623158e308", 0x1.fffffffffffffp1023}, {"1.7976931348623159e308", Infinity}};
    for (const auto& row : table)
        EXPECT_EQ(Read(row.Text), row.Value) << row.Text;
}

TEST(DecimalNumberTest, TheLastOfManyDigitsDecides)
{
    // Half of the smallest number above 0.
    const std::string digits = PowerOfFive(1075);
    const std::string half = "0." + std::string(1075 - digits.size(), '0') + digits;
    EXPECT_EQ(Read(half), 0);
    EXPECT_EQ(Read(half + std::string(2000, '0')), 0);
    EXPECT_EQ(Read(half + std::string(2000, '0') + "1"), 0x1p-1074);
    EXPECT_EQ(Read(half + "e1"), 5 * 0x1p-1074);
}

TEST(DecimalNumberTest, AnExponentMayMakeUpForManyZeros)
{
    const std::string zeros(100000, '0');
    EXPECT_EQ(Read("0." + zeros + "25e100001"), 2.5);
    EXPECT_EQ(Read("25" + zeros + "e-100001"), 2.5);
    EXPECT_EQ(Read("0e99999999999999999999"), 0);
    EXPECT_EQ(Read("1e99999999999999999999"), Infinity);
    EXPECT_EQ(Read("1e-99999999999999999999"), 0);
}

TEST(DecimalNumberTest, WhatIsWrittenIsReadBack)
{
    std::mt19937_64 random(1);
    for (int turn = 0; turn < 20000; ++turn) {
        const double value = AnyNumber(random);
        char text[32];
        EXPECT_EQ(Read(std::string(text, WriteDouble(text, sizeof text, value))), value) << text;
    }
}

#ifdef __cpp_lib_to_chars
TEST(DecimalNumberTest, TheStandardLibraryReadsTheSame)
{
    std::mt19937_64 random(2);
    for (int turn = 0; turn < 20000; ++turn) {
        char text[64];
        const auto digits = static_cast<int>(random() % 25);
        const char* end =
            std::to_chars(text, text + sizeof text, AnyNumber(random), std::chars_format::scientific, digits).ptr;
        double expected = 0;
        std::from_chars(text, end, expected);
        EXPECT_EQ(Read(std::string(text, static_cast<std::size_t>(end - text))), expected);
    }
}
#endif
