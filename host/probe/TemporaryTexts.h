#pragma once

#include <algorithm>
#include <deque>
#include <string_view>
#include <vector>

// Texts that outlive the evaluation that made them: the last few thousand of them.
class TemporaryTexts
{
public:
    // A buffer of at least size bytes that begins with the text and its end.
    char* Keep(std::size_t size, std::string_view text)
    {
        if (m_Buffers.size() >= Kept)
            m_Buffers.pop_front();
        auto& buffer = m_Buffers.emplace_back(std::max(size, text.size() + 1));
        std::copy(text.begin(), text.end(), buffer.begin());
        return buffer.data();
    }

    char* Keep(std::string_view text) { return Keep(0, text); }

private:
    static constexpr std::size_t Kept = 4096;
    std::deque<std::vector<char>> m_Buffers;
};
