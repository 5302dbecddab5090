#include "teskara/text/CTextEditLine.h"

#include "teskara/core/MemorySize.h"
#include "teskara/text/LineNumbers.h"

#include <algorithm>
#include <cstring>

namespace {

// Bytes beyond what is needed at once. A share of the length keeps long lines from being copied by each key.
u64 RoomFor(u64 length)
{
    return length + std::max<u64>(length / 4, 7);
}

} // namespace

u64 CTextEditLine::GetNumber() const
{
    return m_Group ? m_Group->FirstNumber + m_Place : 0;
}

void CTextEditLine::Share(std::string_view text)
{
    m_Own.reset();
    Text = text.data();
    Length = text.size();
    Capacity = 0;
}

void CTextEditLine::Copy(std::string_view text)
{
    std::unique_ptr<char[]> bytes(new char[text.size() + 1]);
    text.copy(bytes.get(), text.size());
    bytes[text.size()] = 0;
    m_Own = std::move(bytes);
    Text = m_Own.get();
    Length = text.size();
    Capacity = text.size() + 1;
}

void CTextEditLine::Reset()
{
    Share("");
    Previous = Next = nullptr;
    m_Group = nullptr;
}

// The line's own bytes, with room for so many and a terminator. Throws if there is no memory.
char* CTextEditLine::OwnBytes(u64 length)
{
    if (length >= Capacity) {
        const u64 capacity = RoomFor(length);
        std::unique_ptr<char[]> bytes(new char[MemorySize(capacity)]);
        std::memcpy(bytes.get(), Text, static_cast<std::size_t>(std::min(Length, length)) + 1);
        m_Own = std::move(bytes);
        Text = m_Own.get();
        Capacity = capacity;
    }
    return m_Own.get();
}

bool CTextEditLine::Insert(u64 column, std::string_view bytes) noexcept
try {
    if (column > Length)
        return false;

    char* place = OwnBytes(Length + bytes.size()) + column;
    std::memmove(place + bytes.size(), place, From(column).size() + 1);
    bytes.copy(place, bytes.size());
    Length += bytes.size();
    return true;
} catch (...) {
    return false;
}

bool CTextEditLine::Erase(u64 column) noexcept
try {
    if (column >= Length)
        return true;

    char* place = OwnBytes(Length) + column;
    std::memmove(place, place + 1, From(column).size());
    --Length;
    return true;
} catch (...) {
    return false;
}

bool CTextEditLine::Cut(u64 column) noexcept
try {
    if (column >= Length)
        return true;

    OwnBytes(column)[column] = 0;
    Length = column;
    return true;
} catch (...) {
    return false;
}
