#include "teskara/core/Numbers.h"

#include "tests/unit/TrappingFloats.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <string>

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

u32 HexOr(std::string_view text, u32 fallback)
{
    ReadHex(text, fallback);
    return fallback;
}

template <typename Value> std::string Written(std::size_t (*write)(char*, std::size_t, Value), Value value)
{
    char text[32];
    return {text, write(text, sizeof text, value)};
}

} // namespace

TEST(Numbers, AnIntegerIsReadUpToTheFirstOtherByte)
{
    const struct {
        const char* Text;
        i32 Value;
    } table[] = {{"", 0}, {"0", 0}, {"12abc", 12}, {" \t\n\v\f\r7", 7}, {"-5", -5}, {"+5", 5}, {"--5", 0}, {"- 5", 0},
        {"abc", 0}, {"0x10", 0}, {"007", 7}, {"1.9", 1}, {"2147483647", 2147483647}, {"-2147483648", -2147483647 - 1},
        {"2147483648", -2147483647 - 1}, {"-2147483649", 2147483647}, {"4294967295", -1}, {"4294967296", 0},
        {"99999999999", 1215752191}, {"-", 0}, {"+", 0}, {" ", 0}};
    for (const auto& row : table)
        EXPECT_EQ(ReadInteger(row.Text), row.Value) << row.Text;
}

TEST(Numbers, AnEndlessIntegerKeepsTheLow32Bits)
{
    EXPECT_EQ(ReadInteger("1" + std::string(10000, '0')), 0);
    EXPECT_EQ(ReadInteger(std::string(10000, '0') + "1"), 1);
    EXPECT_EQ(ReadInteger(std::string_view("1\0002", 3)), 1);
}

TEST(Numbers, AFloatIsReadUpToTheFirstOtherByte)
{
    const struct {
        const char* Text;
        double Value;
    } table[] = {{"", 0}, {"x", 0}, {"0.5", 0.5}, {"0,5", 0}, {".5", 0.5}, {"5.", 5}, {" +1.5x", 1.5}, {"-1.5", -1.5},
        {"1e3", 1000}, {"1e", 1}, {"1e+", 1}, {"1.5.5", 1.5}, {"+-1", 0}, {"-+1", 0}, {"0x10", 0}, {"50%", 50},
        {"inf", Infinity}, {"-Infinity", -Infinity}, {"1e999", Infinity}, {"-1e999", -Infinity}, {"1e-999", 0},
        {"0.00000001e400", Infinity}, {"10000000000e-500", 0}, {"1e99999999999999999999", Infinity},
        {"1e-99999999999999999999", 0}};
    for (const auto& row : table)
        EXPECT_EQ(ReadDouble(row.Text), row.Value) << row.Text;
    EXPECT_TRUE(std::isnan(ReadDouble("nan")));
    EXPECT_TRUE(std::isnan(ReadFloat("NaN")));
    EXPECT_TRUE(std::signbit(ReadDouble("-1e-999")));
}

TEST(Numbers, AFloatHasSinglePrecision)
{
    EXPECT_EQ(ReadFloat("0.1"), 0.1f);
    EXPECT_EQ(ReadFloat("1e39"), std::numeric_limits<float>::infinity());
    EXPECT_EQ(ReadFloat("16777217"), 16777216.0f);
}

TEST(Numbers, HexadecimalNeedsADigitAndNoPrefix)
{
    EXPECT_EQ(HexOr("ff", 7), 0xFFu);
    EXPECT_EQ(HexOr("FFa00000", 7), 0xFFA00000u);
    EXPECT_EQ(HexOr(" \t0x1F", 7), 0x1Fu);
    EXPECT_EQ(HexOr("0X1f", 7), 0x1Fu);
    EXPECT_EQ(HexOr("-1", 7), 0xFFFFFFFFu);
    EXPECT_EQ(HexOr("+a", 7), 10u);
    EXPECT_EQ(HexOr("-0x10", 7), 0xFFFFFFF0u);
    EXPECT_EQ(HexOr("1fg", 7), 0x1Fu);
    EXPECT_EQ(HexOr("0x", 7), 0u);
    EXPECT_EQ(HexOr("0xg", 7), 0u);
    EXPECT_EQ(HexOr("123456789", 7), 0x23456789u);
}

TEST(Numbers, HexadecimalWithoutADigitLeavesTheValue)
{
    for (const char* text : {"", " ", "zz", "-", "+", "x1", "#ff", "- 1", "--1"}) {
        u32 value = 7;
        EXPECT_FALSE(ReadHex(text, value)) << text;
        EXPECT_EQ(value, 7u) << text;
    }
}

TEST(Numbers, TruncatingToASignedIntegerGivesTheLowestBeyondTheRange)
{
    constexpr i32 Lowest = std::numeric_limits<i32>::min();
    EXPECT_EQ(TruncateToI32(1.9), 1);
    EXPECT_EQ(TruncateToI32(-1.9), -1);
    EXPECT_EQ(TruncateToI32(2147483647.9), 2147483647);
    EXPECT_EQ(TruncateToI32(-2147483648.9), Lowest);
    for (const double value : {2147483648.0, -2147483649.0, 1e30, -1e30, Infinity, -Infinity, NotANumber})
        EXPECT_EQ(TruncateToI32(value), Lowest) << value;
}

TEST(Numbers, TruncatingToAnUnsignedIntegerKeepsTheLow32Of64Bits)
{
    EXPECT_EQ(TruncateToU32(5.7), 5u);
    EXPECT_EQ(TruncateToU32(-5.7), 0xFFFFFFFBu);
    EXPECT_EQ(TruncateToU32(4294967296.0 + 3), 3u);
    EXPECT_EQ(TruncateToU32(-9223372036854775808.0), 0u);
    for (const double value : {9223372036854775808.0, -1e30, 1e30, Infinity, -Infinity, NotANumber})
        EXPECT_EQ(TruncateToU32(value), 0u) << value;
}

TEST(Numbers, TruncatingToAByteStaysBetween0And255)
{
    EXPECT_EQ(TruncateToByte(127.9), 127);
    EXPECT_EQ(TruncateToByte(254.99), 254);
    for (const double value : {255.0, 256.0, 1e30, Infinity})
        EXPECT_EQ(TruncateToByte(value), 255) << value;
    for (const double value : {-0.5, -1.0, -1e30, -Infinity, NotANumber})
        EXPECT_EQ(TruncateToByte(value), 0) << value;
}

TEST(Numbers, ArithmeticWraps)
{
    EXPECT_EQ(WrapAdd(2147483647, 1), std::numeric_limits<i32>::min());
    EXPECT_EQ(WrapAdd(-1, 5u), 4);
    EXPECT_EQ(WrapAdd<u32>(-1, 0u), 0xFFFFFFFFu);
    EXPECT_EQ(WrapSub(std::numeric_limits<i32>::min(), 1), 2147483647);
    EXPECT_EQ(WrapSub<u32>(0u, 1u), 0xFFFFFFFFu);
    EXPECT_EQ(WrapMul(0x10000, 0x10000), 0);
}

TEST(Numbers, WrittenNumbersReadBackTheSame)
{
    EXPECT_EQ(Written<i64>(WriteInteger, -9223372036854775807 - 1), "-9223372036854775808");
    EXPECT_EQ(Written<i64>(WriteInteger, u32{4294967295}), "4294967295");
    EXPECT_EQ(Written<float>(WriteFloat, 0.1f), "0.1");
    EXPECT_EQ(Written<float>(WriteFloat, 1e30f), "1e+30");
    EXPECT_EQ(Written<double>(WriteDouble, 0.1), "0.1");
    EXPECT_EQ(ReadFloat(Written<float>(WriteFloat, 3.4028235e38f)), 3.4028235e38f);
}

TEST(Numbers, AFixedNumberOfDecimalsIsRoundedAndPadded)
{
    char text[512];
    WriteFixed(text, sizeof text, 0.5, 6);
    EXPECT_STREQ(text, "0.500000");
    WriteFixed(text, sizeof text, -1.96, 1);
    EXPECT_STREQ(text, "-2.0");
    WriteFixed(text, sizeof text, 2.4, -3);
    EXPECT_STREQ(text, "2");
    EXPECT_EQ(WriteFixed(text, sizeof text, -1e308, 1000), 1u + 309 + 1 + 64);
}

TEST(Numbers, WritersCutToTheBuffer)
{
    char text[4] = "###";
    EXPECT_EQ(WriteInteger(text, sizeof text, 123456), 3u);
    EXPECT_STREQ(text, "123");
    EXPECT_EQ(WriteFloat(text, 0, 1.5f), 0u);
    EXPECT_STREQ(text, "123");
}

#ifdef __GLIBC__
TEST(Numbers, AHostThatTrapsInvalidNumbersIsNotTrapped)
{
    const TrappingFloats traps;
    for (const double value : {NotANumber, Infinity, -Infinity, 1e300, -1e300}) {
        TruncateToI32(value);
        TruncateToU32(value);
        TruncateToByte(value);
    }
    for (const char* text : {"1e39", "-1e300", "1e999", "nan", "inf", "3.4028236e38"})
        ReadFloat(text);
    EXPECT_EQ(ReadFloat("-1e39"), -static_cast<float>(Infinity));
    EXPECT_EQ(ReadFloat("3.4028235677973366e38"), static_cast<float>(Infinity));
    EXPECT_EQ(ReadFloat("3.4028235677973362e38"), std::numeric_limits<float>::max());
}
#endif

// A host may have set a locale with a decimal comma.
TEST(Numbers, ALocaleChangesNothing)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "tr_TR.UTF-8"}) {
        if (!std::setlocale(LC_ALL, name))
            continue;
        EXPECT_EQ(ReadFloat("0.5"), 0.5f);
        EXPECT_EQ(Written<float>(WriteFloat, 0.5f), "0.5");
    }
    std::setlocale(LC_ALL, before.c_str());
}
