#include "teskara/text/CaretText.h"

#include "teskara/core/BoundedText.h"
#include "teskara/core/MemorySize.h"

#include <cstring>

void CaretText::Reserve(u64 room)
{
    m_Bytes = std::make_unique<char[]>(MemorySize(room + 1));
    m_Room = room;
    CaretPos = 0;
    TextLength = 0;
}

const char* CaretText::From(u64 place) const
{
    return m_Bytes ? m_Bytes.get() + std::min(place, TextLength) : "";
}

void CaretText::Set(std::string_view text, u64 limit)
{
    limit = std::min(limit, m_Room);
    Take(text, limit == 0 ? 0 : limit - 1);
}

void CaretText::Fill(std::string_view text, u64 limit)
{
    Take(text, std::min(limit, m_Room));
}

void CaretText::Take(std::string_view text, u64 most)
{
    if (!m_Bytes)
        return;

    TextLength = CopyBounded(m_Bytes.get(), static_cast<std::size_t>(most) + 1, text);
    CaretPos = Caret();
}

void CaretText::Clear()
{
    Take({}, 0);
}

bool CaretText::Insert(char byte, u64 limit)
{
    limit = std::min(limit, m_Room);
    CaretPos = Caret();
    if (CaretPos >= limit)
        return false;

    // Only a line that is longer than the limit keeps its length here: the limit was lowered.
    char* const caret = m_Bytes.get() + CaretPos;
    if (CaretPos == TextLength) {
        ++TextLength;
    } else if (InsertMode) {
        std::memmove(caret + 1, caret, static_cast<std::size_t>(TextLength - CaretPos));
        TextLength += TextLength < limit;
    }
    m_Bytes.get()[TextLength] = 0;
    *caret = byte;
    ++CaretPos;
    return true;
}

bool CaretText::Backspace()
{
    CaretPos = Caret();
    if (CaretPos == 0)
        return false;

    --CaretPos;
    CloseGap();
    return true;
}

bool CaretText::Delete()
{
    CaretPos = Caret();
    if (CaretPos == TextLength)
        return false;

    CloseGap();
    return true;
}

// Drops the byte behind the caret.
void CaretText::CloseGap()
{
    char* const caret = m_Bytes.get() + CaretPos;
    std::memmove(caret, caret + 1, static_cast<std::size_t>(TextLength - CaretPos));
    --TextLength;
}

void CaretText::MoveLeft()
{
    CaretPos = Caret();
    CaretPos -= CaretPos != 0;
}

void CaretText::MoveRight()
{
    CaretPos = Caret();
    CaretPos += *From(CaretPos) != 0;
}
