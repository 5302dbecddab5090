#include "host/LineInput.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>

namespace host {

namespace {

constexpr std::size_t LongestLine = 65536;
constexpr std::size_t ReadSize = 4096;

} // namespace

std::optional<std::string> LineInput::Take()
{
    std::size_t end = m_Bytes.find('\n');
    while (end == m_Bytes.npos && m_Bytes.size() < LongestLine && !m_IsAtEnd && IsReady()) {
        Read();
        end = m_Bytes.find('\n');
    }
    const bool isWhole = end != m_Bytes.npos;
    if (!isWhole && m_Bytes.size() < LongestLine && !(m_IsAtEnd && !m_Bytes.empty()))
        return std::nullopt;

    std::string line = m_Bytes.substr(0, end);
    m_Bytes.erase(0, isWhole ? end + 1 : end);
    if (line.ends_with('\r'))
        line.pop_back();
    return line;
}

// A process that reads from the terminal in its background would be stopped.
bool LineInput::IsReady() const
{
    if (isatty(m_Descriptor) && tcgetpgrp(m_Descriptor) != getpgrp())
        return false;

    pollfd input = {m_Descriptor, POLLIN, 0};
    return poll(&input, 1, 0) > 0;
}

void LineInput::Read()
{
    char bytes[ReadSize];
    const ssize_t count = read(m_Descriptor, bytes, sizeof bytes);
    if (count > 0)
        m_Bytes.append(bytes, static_cast<std::size_t>(count));
    else if (count == 0 || (errno != EINTR && errno != EAGAIN))
        m_IsAtEnd = true;
}

} // namespace host
