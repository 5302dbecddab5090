#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <cstddef>
#include <memory>
#include <string_view>

struct LineGroup;

// A line of an edited text, without its line end. A line that nobody has changed shares its bytes with the text that it
// came in with; the first change gives it bytes of its own. LineStore makes lines, links and numbers them.
class TESKARA_EXPORT CTextEditLine
{
public:
    CTextEditLine() = default;
    CTextEditLine(const CTextEditLine&) = delete;
    CTextEditLine& operator=(const CTextEditLine&) = delete;

    // The place in the text, counted from 0.
    u64 GetNumber() const;

    std::string_view Bytes() const { return {Text, static_cast<std::size_t>(Length)}; }

    // What follows a column; empty at the end and beyond.
    std::string_view From(u64 column) const
    {
        return Bytes().substr(static_cast<std::size_t>(column < Length ? column : Length));
    }

    // Puts bytes of another line in front of a column. False, and nothing is changed: the line does not reach so far, or
    // there is no memory.
    bool Insert(u64 column, std::string_view bytes) noexcept;

    // Takes out the byte behind a column, if there is one. False: there is no memory.
    bool Erase(u64 column) noexcept;

    // Takes out what follows a column. False: there is no memory.
    bool Cut(u64 column) noexcept;

    const char* Text = ""; // terminated; good until the line changes
    u64 Length = 0;
    u64 Capacity = 0; // bytes of its own, the terminator among them; 0 while they are shared
    CTextEditLine* Previous = nullptr;
    CTextEditLine* Next = nullptr;

private:
    friend class LineNumbers;
    friend class LinePool;
    friend class LineStore;

    // Takes a terminated text that outlives the line's use of it.
    void Share(std::string_view text);

    // Takes a copy of a text. Throws if there is no memory.
    void Copy(std::string_view text);

    // Makes it empty and alone.
    void Reset();
    char* OwnBytes(u64 length);

    std::unique_ptr<char[]> m_Own; // null while the bytes are shared
    LineGroup* m_Group = nullptr;
    u32 m_Place = 0; // in the group
};

// A place in an edited text: in front of a byte, or at the end of a line. The column may lie beyond the end of a line
// that has become shorter.
struct TextEditPos {
    bool operator==(const TextEditPos&) const = default;

    CTextEditLine* Line = nullptr; // null for no place
    u64 Column = 0;
};
