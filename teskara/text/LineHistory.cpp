#include "teskara/text/LineHistory.h"

#include "teskara/core/Limits.h"

#include <algorithm>

void LineHistory::Reset(u32 capacity)
{
    m_Lines.clear();
    m_Capacity = static_cast<u32>(std::min<std::size_t>(capacity, Limits::RingLines));
    Write = 0;
    Read = 0;
}

void LineHistory::Add(std::string_view line)
{
    if (m_Capacity == 0)
        return;

    if (Write == Count())
        m_Lines.emplace_back(line);
    else
        m_Lines[Write] = utf8string(line);
    Write = Write + 1 == m_Capacity ? 0 : Write + 1;
    Read = Write;
}

const utf8string* LineHistory::Previous()
{
    if (m_Lines.empty())
        return nullptr;

    Read = Read == 0 ? Count() - 1 : Read - 1;
    return &m_Lines[Read];
}

const utf8string* LineHistory::Next()
{
    if (m_Lines.empty())
        return nullptr;

    Read = Read + 1 >= Count() ? 0 : Read + 1;
    return &m_Lines[Read];
}

const utf8string* LineHistory::Last() const
{
    return m_Lines.empty() ? nullptr : &m_Lines.back();
}
