#include "host/probe/ExpectedLines.h"

#include "host/probe/ValueText.h"

#include <algorithm>

namespace {

constexpr std::string_view AnyLines = "...";

// One character of an expected line: a plain one, or the star for any run.
struct PatternCharacter {
    char Character;
    bool AnyRun;
};

std::vector<PatternCharacter> ReadPattern(std::string_view expected)
{
    std::vector<PatternCharacter> pattern;
    for (std::size_t at = 0; at < expected.size(); ++at) {
        const bool escaped = expected.substr(at).starts_with("\\*");
        if (escaped)
            ++at;
        pattern.push_back({expected[at], expected[at] == '*' && !escaped});
    }
    return pattern;
}

// For each pair of places, whether the rests behind them match, or how much of them does.
template <class Value> class Table
{
public:
    Table(std::size_t rows, std::size_t columns) : m_Columns(columns + 1), m_Values((rows + 1) * m_Columns) { }

    Value& At(std::size_t row, std::size_t column) { return m_Values[row * m_Columns + column]; }

private:
    std::size_t m_Columns;
    std::vector<Value> m_Values;
};

} // namespace

bool MatchLine(std::string_view expected, std::string_view actual)
{
    const auto pattern = ReadPattern(TrimBlanks(expected));
    actual = TrimBlanks(actual);

    // Greedy: the last star is widened whenever what follows it does not fit.
    constexpr std::size_t None = std::string_view::npos;
    std::size_t at = 0;
    std::size_t place = 0;
    std::size_t star = None;
    std::size_t starEnd = 0;
    while (at < actual.size()) {
        if (place < pattern.size() && pattern[place].AnyRun) {
            star = place++;
            starEnd = at;
        } else if (place < pattern.size() && pattern[place].Character == actual[at]) {
            ++place;
            ++at;
        } else if (star != None) {
            place = star + 1;
            at = ++starEnd;
        } else {
            return false;
        }
    }
    while (place < pattern.size() && pattern[place].AnyRun)
        ++place;
    return place == pattern.size();
}

bool MatchLines(const std::vector<std::string>& expected, const std::vector<std::string>& actual)
{
    if (std::find(expected.begin(), expected.end(), AnyLines) == expected.end())
        return std::equal(expected.begin(), expected.end(), actual.begin(), actual.end(), MatchLine);

    Table<char> rest(expected.size(), actual.size());
    for (std::size_t row = expected.size() + 1; row-- > 0;) {
        for (std::size_t column = actual.size() + 1; column-- > 0;) {
            const bool more = column < actual.size();
            char& matches = rest.At(row, column);
            if (row == expected.size())
                matches = !more;
            else if (expected[row] == AnyLines)
                matches = rest.At(row + 1, column) || (more && rest.At(row, column + 1));
            else
                matches = more && rest.At(row + 1, column + 1) && MatchLine(expected[row], actual[column]);
        }
    }
    return rest.At(0, 0);
}

std::string AsExpectedLine(std::string_view actual)
{
    std::string line;
    for (const char character : TrimBlanks(actual)) {
        if (character == '*')
            line += '\\';
        line += character;
    }
    return line;
}

std::vector<std::string> DifferentLines(
    const std::vector<std::string>& expected, const std::vector<std::string>& actual)
{
    constexpr std::size_t LargestTable = 1u << 22;
    if (actual.size() > LargestTable / (expected.size() + 1))
        return {"- (" + std::to_string(expected.size()) + " lines)", "+ (" + std::to_string(actual.size()) + " lines)"};

    Table<std::size_t> common(expected.size(), actual.size());
    for (std::size_t row = expected.size(); row-- > 0;) {
        for (std::size_t column = actual.size(); column-- > 0;) {
            common.At(row, column) = MatchLine(expected[row], actual[column])
                ? common.At(row + 1, column + 1) + 1
                : std::max(common.At(row + 1, column), common.At(row, column + 1));
        }
    }

    std::vector<std::string> lines;
    std::size_t row = 0;
    std::size_t column = 0;
    while (row < expected.size() || column < actual.size()) {
        const bool both = row < expected.size() && column < actual.size();
        if (both && MatchLine(expected[row], actual[column])) {
            lines.push_back("  " + actual[column++]);
            ++row;
        } else if (row < expected.size()
            && (column == actual.size() || common.At(row + 1, column) >= common.At(row, column + 1))) {
            lines.push_back("- " + expected[row++]);
        } else {
            lines.push_back("+ " + actual[column++]);
        }
    }
    return lines;
}
