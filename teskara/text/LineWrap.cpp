#include "teskara/text/LineWrap.h"

#include <algorithm>

bool LineWrap::Next(std::string_view& line)
{
    if (m_Rest.empty())
        return false;

    // One byte beyond the line tells how it ends.
    const std::size_t columns = static_cast<std::size_t>(std::min<u64>(m_Columns, LongestLine));
    const std::string_view seen = m_Rest.substr(0, columns + 1);
    const std::size_t lineFeed = seen.find('\n');
    if (lineFeed < LongestLine) {
        line = Take(lineFeed, 1);
    } else if (columns == LongestLine && seen.size() >= LongestLine) {
        line = seen.substr(0, LongestLine);
        m_Rest = {};
    } else if (seen.size() <= columns) {
        line = Take(seen.size(), 0);
    } else if (seen.back() == ' ') {
        line = Take(columns, 1);
    } else {
        const std::size_t space = seen.rfind(' ');
        line = space == std::string_view::npos ? Take(columns, 0) : Take(space, 1);
    }
    return true;
}

// The line has that length, and the next one begins so many bytes behind it.
std::string_view LineWrap::Take(std::size_t length, std::size_t dropped)
{
    const std::string_view line = m_Rest.substr(0, length);
    m_Rest.remove_prefix(length + dropped);
    return line;
}
