#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"
#include "teskara/text/CTextEditLine.h"
#include "teskara/text/LineNumbers.h"
#include "teskara/text/LinePool.h"

#include <memory>
#include <string_view>
#include <vector>

class LivePosition;

// Where a position goes whose line is taken out, if there is a line on both sides.
enum class RemovedLine { ToPrevious, ToNext };

// The lines of an edited text, in their order. Positions that are tied to it never name a line that is gone.
class TESKARA_EXPORT LineStore
{
public:
    LineStore() = default;

    // Positions that are left become none.
    ~LineStore();
    LineStore(const LineStore&) = delete;
    LineStore& operator=(const LineStore&) = delete;

    CTextEditLine* First() const { return m_First; } // null without lines
    CTextEditLine* Last() const { return m_Last; }
    u64 Count() const { return m_Count; }

    // Copies a text to be cut into lines. A line that is added from it, terminated where it ends, shares it; that part
    // of it must not change any more. The text that was kept last is not copied again. Null: there is no memory.
    std::shared_ptr<char[]> Keep(const char* text) noexcept;

    // Adds a line behind another, or in front of all if that is null. Null: there is no memory.
    CTextEditLine* InsertAfter(CTextEditLine* line, std::string_view text) noexcept;
    CTextEditLine* Append(const char* text) noexcept;

    // Ends a line of this store. Positions on it keep their columns and go to its neighbor; with the last line of all
    // they become none.
    void Remove(CTextEditLine& line, RemovedLine positions);

    // Ends all lines. All positions become none.
    void Clear();

    // Walks through everything: whether links, numbers and lengths fit, and every position is none or on a line.
    bool IsConsistent() const;

private:
    friend class LivePosition;

    // A text that lines share.
    struct KeptText {
        std::shared_ptr<char[]> Bytes;
        std::size_t Size; // with the terminator
    };

    bool IsKept(std::string_view text) const;
    CTextEditLine& MakeLine(std::string_view text);
    bool Contains(const CTextEditLine* line) const;

    LinePool m_Pool;
    LineNumbers m_Numbers;
    CTextEditLine* m_First = nullptr;
    CTextEditLine* m_Last = nullptr;
    u64 m_Count = 0;
    std::vector<LivePosition*> m_Positions;
    std::vector<KeptText> m_Kept;
    std::weak_ptr<char[]> m_Newest; // what was kept last, even if the lines have been cleared since
};

// A position that is tied to the lines of a store.
class TESKARA_EXPORT LivePosition : public TextEditPos
{
public:
    // Throws if there is no memory.
    explicit LivePosition(LineStore& lines);
    ~LivePosition();
    LivePosition(const LivePosition& other) = delete;
    LivePosition& operator=(const LivePosition& other);
    LivePosition& operator=(const TextEditPos& position);

    void Clear() { *this = TextEditPos(); }

private:
    friend class LineStore;

    LineStore* m_Lines; // null after its end
};
