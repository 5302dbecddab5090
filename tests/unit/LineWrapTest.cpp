#include "teskara/text/LineWrap.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Strings = std::vector<std::string>;

Strings Wrapped(std::string_view text, u64 columns)
{
    Strings lines;
    LineWrap wrap(text, columns);
    for (std::string_view line; wrap.Next(line);)
        lines.emplace_back(line);
    return lines;
}

struct Row {
    const char* Text;
    u64 Columns;
    Strings Lines;
};

} // namespace

TEST(LineWrap, BreaksAtTheWidth)
{
    const Row rows[] = {
        {"abc def", 5, {"abc", "def"}},
        {"abcdefgh", 5, {"abcde", "fgh"}},
        {"abcde fgh", 5, {"abcde", "fgh"}}, // the space at the break is eaten
        {"abcde  fgh", 5, {"abcde", " fgh"}},
        {"abcde", 5, {"abcde"}},
        {"a b c d", 5, {"a b c", "d"}},
        {"ab cdefgh", 5, {"ab", "cdefg", "h"}},
        {" abcdef", 5, {"", "abcde", "f"}},
        {"     x", 5, {"    ", "x"}},
        {"abcde ", 5, {"abcde"}},
        {"abcde f", 5, {"abcde", "f"}},
        {"abc", 1, {"a", "b", "c"}},
        {"a b", 1, {"a", "b"}},
        {"ab cd", 2, {"ab", "cd"}},
        {"abc", 0, {}},
        {"", 5, {}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.Lines, Wrapped(row.Text, row.Columns)) << '"' << row.Text << "\" in " << row.Columns;
}

TEST(LineWrap, ALineFeedEndsALineAndAtTheEndBeginsNone)
{
    const Row rows[] = {
        {"a\n\nb", 5, {"a", "", "b"}},
        {"a\n", 5, {"a"}},
        {"\n", 5, {""}},
        {"\n\n", 5, {"", ""}},
        {"abcde\nf", 5, {"abcde", "f"}}, // a full line ends once
        {"abcde\n", 5, {"abcde"}},
        {"ab cd\nef gh", 5, {"ab cd", "ef gh"}},
        {"\r\n\t", 5, {"\r", "\t"}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.Lines, Wrapped(row.Text, row.Columns)) << row.Text;
}

TEST(LineWrap, CountsColorCodesAndEveryOtherByteAsColumns)
{
    EXPECT_EQ((Strings{"\ar12", "34"}), Wrapped("\ar1234", 4));
    EXPECT_EQ((Strings{"\xc3", "\xa4"}), Wrapped("\xc3\xa4", 1));
}

TEST(LineWrap, ALineOf2047BytesIsTheLast)
{
    const std::string longest(2047, 'x');
    for (const u64 columns : {u64{2047}, u64{2048}, u64{0xffffffffu}, ~u64{0}}) {
        EXPECT_EQ((Strings{longest}), Wrapped(longest, columns));
        EXPECT_EQ((Strings{longest}), Wrapped(longest + "y", columns));
        EXPECT_EQ((Strings{longest}), Wrapped(longest + "\nnext", columns));
        EXPECT_EQ((Strings{longest}), Wrapped(longest + " next", columns));
        EXPECT_EQ((Strings{"a", longest}), Wrapped("a\n" + longest + "y", columns));
        EXPECT_EQ((Strings{longest.substr(1), "next"}), Wrapped(longest.substr(1) + "\nnext", columns));
    }
    EXPECT_EQ((Strings{longest.substr(1), "xy"}), Wrapped(longest + "y", 2046));
}

TEST(LineWrap, MegabytesGoThroughInNoTime)
{
    const std::string text(4'000'000, 'x');
    EXPECT_EQ(Strings::size_type{50'000}, Wrapped(text, 80).size());
    EXPECT_EQ(Strings::size_type{4'000'000}, Wrapped(std::string(4'000'000, '\n'), 80).size());
    EXPECT_EQ(Strings::size_type{1}, Wrapped(text, 5'000'000).size());
}
