#include "host/lint/NearestName.h"

#include "teskara/core/AsciiCase.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace host {

namespace {

// How many letters must be added, dropped or changed, in any case.
std::size_t Distance(std::string_view from, std::string_view to)
{
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t left = 0; left < from.size(); ++left) {
        std::size_t diagonal = row[0]++;
        for (std::size_t right = 0; right < to.size(); ++right) {
            const std::size_t changed = diagonal + (FoldAscii(from[left]) != FoldAscii(to[right]));
            diagonal = row[right + 1];
            row[right + 1] = std::min({row[right] + 1, row[right + 1] + 1, changed});
        }
    }
    return row.back();
}

} // namespace

std::string NearestName(std::string_view word, const std::vector<std::string>& names)
{
    constexpr std::size_t longest = 64;
    std::string nearest;
    std::size_t least = std::max<std::size_t>(1, word.size() / 3) + 1;
    for (const std::string& name : names) {
        if (word.size() > longest || name.size() > longest)
            continue;
        const std::size_t distance = Distance(word, name);
        if (distance < least) {
            least = distance;
            nearest = name;
        }
    }
    return nearest;
}

} // namespace host
