#include "host/lint/NearestName.h"

#include "teskara/core/AsciiCase.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>

namespace host {

namespace {

constexpr std::size_t LongestWord = 64;

bool IsSameLetter(char left, char right)
{
    return FoldAscii(left) == FoldAscii(right);
}

// How many letters must be added, dropped, changed or exchanged with the next one, in any case.
std::size_t Distance(std::string_view from, std::string_view to)
{
    std::array<std::array<std::size_t, LongestWord + 1>, 3> rows = {}; // the present one and the two before it
    std::iota(rows[0].begin(), rows[0].end(), std::size_t{0});
    for (std::size_t left = 1; left <= from.size(); ++left) {
        auto& row = rows[left % 3];
        const auto& last = rows[(left + 2) % 3];
        const auto& oneBefore = rows[(left + 1) % 3];
        row[0] = left;
        for (std::size_t right = 1; right <= to.size(); ++right) {
            const bool isSame = IsSameLetter(from[left - 1], to[right - 1]);
            row[right] = std::min({row[right - 1] + 1, last[right] + 1, last[right - 1] + (isSame ? 0 : 1)});
            const bool isExchanged = left > 1 && right > 1 && IsSameLetter(from[left - 1], to[right - 2])
                && IsSameLetter(from[left - 2], to[right - 1]);
            if (isExchanged)
                row[right] = std::min(row[right], oneBefore[right - 2] + 1);
        }
    }
    return rows[from.size() % 3][to.size()];
}

// Whether a name has all letters of a word in their order, as OnLeftClick has those of OnClick.
bool HasLettersOf(std::string_view name, std::string_view word)
{
    std::size_t found = 0;
    for (const char letter : name)
        found += found < word.size() && IsSameLetter(letter, word[found]);
    return found == word.size();
}

// Whether two words have most of the shorter one's letters at their beginning, as Childs and Children.
bool BeginsLike(std::string_view name, std::string_view word)
{
    const auto end = std::mismatch(name.begin(), name.end(), word.begin(), word.end(), IsSameLetter).second;
    return static_cast<std::size_t>(end - word.begin()) * 3 >= word.size() * 2;
}

std::string ShortestAround(std::string_view word, const std::vector<std::string>& names)
{
    constexpr std::size_t shortestWord = 4; // fewer letters are in many names
    std::string_view shortest;
    for (const std::string& name : names) {
        const bool isShorter = shortest.empty() || name.size() < shortest.size();
        const bool isLong = name.size() > 2 * word.size();
        if (isShorter && !isLong && (HasLettersOf(name, word) || BeginsLike(name, word)))
            shortest = name;
    }
    return std::string(word.size() < shortestWord ? std::string_view() : shortest);
}

} // namespace

std::string NearestName(std::string_view word, const std::vector<std::string>& names)
{
    if (word.size() > LongestWord)
        return {};

    std::string nearest;
    std::size_t least = std::max<std::size_t>(1, word.size() / 3) + 1;
    for (const std::string& name : names) {
        const std::size_t added = std::max(word.size(), name.size()) - std::min(word.size(), name.size());
        if (name.size() > LongestWord || added >= least)
            continue;
        const std::size_t distance = Distance(word, name);
        if (distance < least) {
            least = distance;
            nearest = name;
        }
    }
    return nearest.empty() ? ShortestAround(word, names) : nearest;
}

} // namespace host
