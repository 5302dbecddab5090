#include "host/lint/SourceText.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace host {

namespace {

constexpr std::string_view ByteOrderMark = "\xef\xbb\xbf";

// Lines may be as long as a file: columns are counted from the block in which they stand.
constexpr std::size_t BlockBytes = 4096;

bool BeginsCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xc0) != 0x80;
}

std::size_t CountCharacters(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), BeginsCharacter));
}

u64 UnitsOf(char byte)
{
    if (!BeginsCharacter(byte))
        return 0;
    return static_cast<unsigned char>(byte) >= 0xf0 ? 2 : 1;
}

} // namespace

SourceText::SourceText(std::string text) : m_Text(std::move(text))
{
    m_Lines.push_back(m_Text.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0);
    for (std::size_t at = m_Text.find('\n'); at != m_Text.npos; at = m_Text.find('\n', at + 1))
        m_Lines.push_back(at + 1);
    for (std::size_t begin = 0, passed = 0; begin <= m_Text.size(); begin += BlockBytes) {
        m_Characters.push_back(passed);
        passed += CountCharacters(std::string_view(m_Text).substr(begin, BlockBytes));
    }
}

std::size_t SourceText::CharactersBefore(std::size_t offset) const
{
    const std::size_t block = offset / BlockBytes;
    const std::size_t begin = block * BlockBytes;
    return m_Characters[block] + CountCharacters(std::string_view(m_Text).substr(begin, offset - begin));
}

SourcePlace SourceText::PlaceOf(std::size_t offset) const
{
    offset = std::min(offset, m_Text.size());
    const auto next = std::upper_bound(m_Lines.begin() + 1, m_Lines.end(), offset);
    const std::size_t begin = std::min(*(next - 1), offset);
    const std::size_t characters = CharactersBefore(offset) - CharactersBefore(begin);
    return {static_cast<u32>(next - m_Lines.begin()), static_cast<u32>(characters) + 1};
}

std::size_t SourceText::OffsetOfUnits(u64 units) const
{
    u64 passed = 0;
    std::size_t at = m_Lines.front();
    while (at < m_Text.size() && passed + UnitsOf(m_Text[at]) <= units)
        passed += UnitsOf(m_Text[at++]);
    return at;
}

} // namespace host
