#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <algorithm>
#include <memory>
#include <string_view>

// A line of bytes that is edited at a caret. It knows no characters: every step is a byte. The bytes have a room of a
// fixed size, which each operation narrows to a limit of its own; where the limit is larger, the room counts.
class TESKARA_EXPORT CaretText
{
public:
    // Makes room for so many bytes and a terminator. The line is empty afterwards. Throws if there is no memory.
    void Reserve(u64 room);

    // Terminated, and good until Reserve. Null while there is no room.
    const char* Bytes() const { return m_Bytes.get(); }

    // What follows a place; at its end and beyond, an empty text. Never null.
    const char* From(u64 place) const;

    // Takes a text that is shorter than the limit, or of any other what fits below it. The text may lie in this line.
    void Set(std::string_view text, u64 limit);

    // The same, up to the limit.
    void Fill(std::string_view text, u64 limit);

    void Clear();

    // These four tell whether they did anything.

    // Puts a byte at the caret and steps over it: in front of what follows, or in its place. Where the line is full, what
    // follows loses its last byte; with the caret at the limit nothing is put.
    bool Insert(char byte, u64 limit);

    // Take out the byte before the caret, or the one behind it.
    bool Backspace();
    bool Delete();

    // The place of the caret, whoever has moved it or the text.
    u64 Caret() const { return std::min(CaretPos, TextLength); }

    void MoveLeft();

    // Not beyond a zero byte.
    void MoveRight();
    void MoveToStart() { CaretPos = 0; }
    void MoveToEnd() { CaretPos = TextLength; }

    bool InsertMode = true; // else bytes are overwritten
    u64 CaretPos = 0;
    u64 TextLength = 0;

private:
    void Take(std::string_view text, u64 most);
    void CloseGap();

    std::unique_ptr<char[]> m_Bytes; // one more than the room
    u64 m_Room = 0;
};
