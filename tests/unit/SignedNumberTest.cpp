#include "host/SignedNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using host::ReadSignedNumber;

TEST(SignedNumberTest, AMinusMayStandBeforeTheDigits)
{
    constexpr double unset = 7;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const struct {
        const char* Text;
        std::size_t Size;
        double Value;
    } table[] = {{"0.3", 3, 0.3}, {"-0.3", 4, -0.3}, {"-12e1 ", 5, -120}, {"-inf", 4, -infinity}, {"", 0, unset},
        {"-", 0, unset}, {"--1", 0, unset}, {"+1", 0, unset}, {" -1", 0, unset}, {"- 1", 0, unset}};
    for (const auto& row : table) {
        double value = unset;
        EXPECT_EQ(ReadSignedNumber(row.Text, value), row.Size) << row.Text;
        EXPECT_EQ(value, row.Value) << row.Text;
    }
}

TEST(SignedNumberTest, ZeroKeepsItsSign)
{
    double value = 1;
    EXPECT_EQ(ReadSignedNumber("-0", value), 2u);
    EXPECT_TRUE(std::signbit(value));
}
