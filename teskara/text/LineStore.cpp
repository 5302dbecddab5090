#include "teskara/text/LineStore.h"

#include <algorithm>
#include <cstring>
#include <functional>

LineStore::~LineStore()
{
    Clear();
    for (LivePosition* position : m_Positions)
        position->m_Lines = nullptr;
}

std::shared_ptr<char[]> LineStore::Keep(const char* text) noexcept
try {
    const std::size_t size = std::strlen(text) + 1;
    std::shared_ptr<char[]> kept = m_Newest.lock();
    if (kept.get() != text) {
        kept.reset(new char[size]);
        std::memcpy(kept.get(), text, size);
        m_Newest = kept;
    } else if (!m_Kept.empty() && m_Kept.back().Bytes == kept) {
        return kept;
    }
    m_Kept.push_back({kept, size});
    return kept;
} catch (...) {
    return nullptr;
}

bool LineStore::IsKept(std::string_view text) const
{
    if (m_Kept.empty())
        return false;

    const char* begin = m_Kept.back().Bytes.get();
    const std::less<const char*> isBefore;
    return !isBefore(text.data(), begin) && isBefore(text.data() + text.size(), begin + m_Kept.back().Size)
        && text.data()[text.size()] == 0;
}

CTextEditLine& LineStore::MakeLine(std::string_view text)
{
    CTextEditLine& line = m_Pool.Take();
    if (IsKept(text)) {
        line.Share(text);
        return line;
    }
    try {
        line.Copy(text);
        return line;
    } catch (...) {
        m_Pool.Give(line);
        throw;
    }
}

CTextEditLine* LineStore::InsertAfter(CTextEditLine* previous, std::string_view text) noexcept
try {
    CTextEditLine& line = MakeLine(text);
    CTextEditLine* next = previous ? previous->Next : m_First;
    try {
        m_Numbers.Add(line, previous, next);
    } catch (...) {
        m_Pool.Give(line);
        return nullptr;
    }

    line.Previous = previous;
    line.Next = next;
    (previous ? previous->Next : m_First) = &line;
    (next ? next->Previous : m_Last) = &line;
    ++m_Count;
    return &line;
} catch (...) {
    return nullptr;
}

CTextEditLine* LineStore::Append(const char* text) noexcept
{
    return InsertAfter(m_Last, text);
}

void LineStore::Remove(CTextEditLine& line, RemovedLine positions)
{
    CTextEditLine* first = positions == RemovedLine::ToPrevious ? line.Previous : line.Next;
    CTextEditLine* second = positions == RemovedLine::ToPrevious ? line.Next : line.Previous;
    CTextEditLine* neighbor = first ? first : second;
    for (LivePosition* position : m_Positions) {
        if (position->Line == &line)
            *position = TextEditPos{neighbor, neighbor ? position->Column : 0};
    }

    m_Numbers.Remove(line);
    (line.Previous ? line.Previous->Next : m_First) = line.Next;
    (line.Next ? line.Next->Previous : m_Last) = line.Previous;
    --m_Count;
    m_Pool.Give(line);
}

void LineStore::Clear()
{
    for (LivePosition* position : m_Positions)
        position->Clear();
    m_Numbers.Clear();
    m_Pool.Clear();
    m_First = m_Last = nullptr;
    m_Count = 0;
    m_Kept.clear();
}

bool LineStore::Contains(const CTextEditLine* line) const
{
    const CTextEditLine* candidate = m_First;
    while (candidate && candidate != line)
        candidate = candidate->Next;
    return candidate;
}

bool LineStore::IsConsistent() const
{
    u64 number = 0;
    const CTextEditLine* previous = nullptr;
    for (const CTextEditLine* line = m_First; line; line = line->Next) {
        if (line->Previous != previous || line->GetNumber() != number || line->Text[line->Length] != 0)
            return false;
        previous = line;
        ++number;
    }
    return m_Last == previous && m_Count == number && m_Numbers.IsConsistent(number)
        && std::all_of(m_Positions.begin(), m_Positions.end(),
            [this](const LivePosition* position) { return !position->Line || Contains(position->Line); });
}

LivePosition::LivePosition(LineStore& lines) : m_Lines(&lines)
{
    m_Lines->m_Positions.push_back(this);
}

LivePosition::~LivePosition()
{
    if (m_Lines)
        std::erase(m_Lines->m_Positions, this);
}

// It stays tied to its own store.
LivePosition& LivePosition::operator=(const LivePosition& other)
{
    if (this != &other)
        TextEditPos::operator=(other);
    return *this;
}

LivePosition& LivePosition::operator=(const TextEditPos& position)
{
    TextEditPos::operator=(position);
    return *this;
}
