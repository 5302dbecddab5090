#include "teskara/core/DecimalNumber.h"

#include "teskara/core/AsciiCase.h"
#include "teskara/core/Types.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cfloat>
#include <cstdlib>
#include <iterator>
#include <limits>

namespace {

using Limits = std::numeric_limits<double>;

constexpr std::size_t WordBits = 32;
constexpr i64 ChunkDigits = 9;
constexpr std::array<u32, ChunkDigits + 1> WordPowers = {
    1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000, 1000000000};

// The powers of ten that a double holds, and so many digits that it holds each number of them. What is made of two such
// numbers by one operation is the nearest one.
constexpr double ExactPowers[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
    1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr i64 LargestExactPower = std::size(ExactPowers) - 1;
constexpr std::size_t ExactDigits = Limits::digits10;

// What lies in the middle between two doubles has at most 767 digits; of what comes after them only matters whether it
// is more than nothing.
constexpr std::size_t MostDigits = 768;

// No exponent that a text has room to make up for is beyond this.
constexpr i64 LargestExponent = i64{1} << 59;

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

// A whole number as large as is needed here: 769 digits and, before it is divided by as large a power of ten as there
// is, 96 bits more than that power has.
class WideNumber
{
public:
    void MultiplyAdd(u32 factor, u32 addend)
    {
        u64 carry = addend;
        for (std::size_t index = 0; index < m_Size; ++index) {
            carry += u64{m_Words[index]} * factor;
            m_Words[index] = static_cast<u32>(carry);
            carry >>= WordBits;
        }
        if (carry)
            m_Words[m_Size++] = static_cast<u32>(carry);
    }

    void AddWordsBelow(std::size_t count)
    {
        std::copy_backward(m_Words.begin(), m_Words.begin() + m_Size, m_Words.begin() + m_Size + count);
        std::fill_n(m_Words.begin(), count, 0);
        m_Size += count;
    }

    // What is left is not kept, only that something was.
    void Divide(u32 divisor)
    {
        u64 rest = 0;
        for (std::size_t index = m_Size; index-- > 0;) {
            rest = rest << WordBits | m_Words[index];
            m_Words[index] = static_cast<u32>(rest / divisor);
            rest %= divisor;
        }
        m_HasRest = m_HasRest || rest != 0;
        while (m_Words[m_Size - 1] == 0)
            --m_Size;
    }

    i64 Bits() const { return static_cast<i64>(m_Size * WordBits) - std::countl_zero(m_Words[m_Size - 1]); }

    // The 64 highest bits, and whether there is anything below them. It has three words or more.
    u64 Top(bool& hasMore) const
    {
        const u32* words = &m_Words[m_Size - 3];
        const int shift = std::countl_zero(words[2]);
        const u64 third = u64{words[0]} << shift;
        hasMore = m_HasRest || static_cast<u32>(third) != 0
            || std::any_of(m_Words.data(), words, [](u32 word) { return word != 0; });
        return (u64{words[2]} << WordBits | words[1]) << shift | third >> WordBits;
    }

private:
    std::array<u32, 208> m_Words; // as many are set as its size says
    std::size_t m_Size = 0;
    bool m_HasRest = false;
};

// The double nearest to a number of 64 bits, the highest of which is set and worth 2 to that power, and what may be
// below them.
double Rounded(u64 top, bool hasMore, i64 power)
{
    constexpr i64 LeastUnit = Limits::min_exponent - Limits::digits;
    constexpr u64 Infinite = std::bit_cast<u64>(Limits::infinity());
    const i64 unit = std::max(power - (Limits::digits - 1), LeastUnit);
    const i64 dropped = unit - (power - 63);
    if (dropped > 64)
        return 0;

    const u64 half = u64{1} << (dropped - 1);
    u64 mantissa = dropped < 64 ? top >> dropped : 0;
    if ((top & half) != 0 && (hasMore || (top & (half - 1)) != 0 || (mantissa & 1) != 0))
        ++mantissa;
    // The highest bit of the mantissa, which a double does not hold, makes the exponent right; so does one that is
    // carried out of it.
    const u64 exponent = static_cast<u64>(unit - LeastUnit) << (Limits::digits - 1);
    return std::bit_cast<double>(std::min(exponent + mantissa, Infinite));
}

// The digits of a number from the first that is not 0, and the power of ten that the last of them counts.
class Decimal
{
public:
    // Takes a number off the front of a text; the number of its bytes.
    std::size_t Take(std::string_view text)
    {
        const std::size_t digits = TakeDigits(text);
        return digits ? digits + TakeExponent(text.substr(digits)) : 0;
    }

    double Nearest() const
    {
        const i64 place = static_cast<i64>(m_Count) + m_Exponent; // of the first digit, 1 being that of units
        if (m_Count == 0 || place < Limits::min_exponent10 - Limits::digits10 - 1)
            return 0;
        if (place > Limits::max_exponent10 + 1)
            return Limits::infinity();
        if (FLT_EVAL_METHOD == 0 && m_Count <= ExactDigits && m_Exponent <= LargestExactPower
            && m_Exponent >= -LargestExactPower) {
            const auto digits = static_cast<double>(Chunk(0, m_Count));
            return m_Exponent < 0 ? digits / ExactPowers[-m_Exponent] : digits * ExactPowers[m_Exponent];
        }
        return NearestOfAny();
    }

private:
    std::size_t TakeDigits(std::string_view text)
    {
        bool isNumber = false;
        bool pointSeen = false;
        std::size_t index = 0;
        for (; index < text.size(); ++index) {
            if (text[index] == '.' && !pointSeen) {
                pointSeen = true;
            } else if (IsDigit(text[index])) {
                isNumber = true;
                TakeDigit(text[index], pointSeen);
            } else {
                break;
            }
        }
        return isNumber ? index : 0;
    }

    void TakeDigit(char digit, bool isFraction)
    {
        if (m_Count == MostDigits) {
            m_HasMore = m_HasMore || digit != '0';
            m_Exponent += isFraction ? 0 : 1;
            return;
        }
        if (m_Count > 0 || digit != '0')
            m_Digits[m_Count++] = digit;
        m_Exponent -= isFraction ? 1 : 0;
    }

    // An "e" with no digits behind it is none.
    std::size_t TakeExponent(std::string_view text)
    {
        if (text.empty() || FoldAscii(text[0]) != 'e')
            return 0;
        const bool isNegative = text.substr(1).starts_with('-');
        const std::size_t begin = isNegative || text.substr(1).starts_with('+') ? 2 : 1;
        std::size_t index = begin;
        i64 exponent = 0;
        for (; index < text.size() && IsDigit(text[index]); ++index)
            exponent = std::min(exponent * 10 + (text[index] - '0'), LargestExponent);
        m_Exponent += isNegative ? -exponent : exponent;
        return index > begin ? index : 0;
    }

    u64 Chunk(std::size_t from, std::size_t count) const
    {
        u64 value = 0;
        for (const char digit : std::string_view(m_Digits + from, count))
            value = value * 10 + static_cast<u64>(digit - '0');
        return value;
    }

    double NearestOfAny() const
    {
        WideNumber number;
        for (std::size_t from = 0; from < m_Count; from += ChunkDigits) {
            const std::size_t count = std::min<std::size_t>(m_Count - from, ChunkDigits);
            number.MultiplyAdd(WordPowers[count], static_cast<u32>(Chunk(from, count)));
        }
        if (m_HasMore)
            number.MultiplyAdd(10, 1);
        const i64 exponent = m_Exponent - (m_HasMore ? 1 : 0);

        // Ten has less than ten thirds of a bit.
        const std::size_t words = 3 + (exponent < 0 ? static_cast<std::size_t>(-exponent) * 10 / 3 / WordBits + 1 : 0);
        number.AddWordsBelow(words);
        for (i64 rest = std::abs(exponent); rest > 0; rest -= ChunkDigits) {
            const u32 power = WordPowers[static_cast<std::size_t>(std::min(rest, ChunkDigits))];
            if (exponent < 0)
                number.Divide(power);
            else
                number.MultiplyAdd(power, 0);
        }
        bool hasMore = false;
        const u64 top = number.Top(hasMore);
        return Rounded(top, hasMore, number.Bits() - 1 - static_cast<i64>(words * WordBits));
    }

    char m_Digits[MostDigits]; // as many are set as their count says
    std::size_t m_Count = 0;
    i64 m_Exponent = 0;
    bool m_HasMore = false;
};

// Takes a word in any case off the front of a text.
std::size_t TakeWord(std::string_view text, std::string_view word)
{
    return EqualsNoCase(text.substr(0, word.size()), word) ? word.size() : 0;
}

} // namespace

std::size_t ReadDecimalNumber(std::string_view text, double& value)
{
    Decimal decimal;
    if (const std::size_t size = decimal.Take(text)) {
        value = decimal.Nearest();
        return size;
    }
    for (const std::string_view word : {"infinity", "inf", "nan"}) {
        if (const std::size_t size = TakeWord(text, word)) {
            value = word == "nan" ? Limits::quiet_NaN() : Limits::infinity();
            return size;
        }
    }
    return 0;
}
