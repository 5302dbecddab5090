#pragma once

#include "teskara/core/Types.h"

#include <memory>
#include <vector>

class CTextEditLine;

// Lines that follow one another. Each knows its place in the group, so that lines before the group move all of its
// numbers at once.
struct LineGroup {
    u64 FirstNumber = 0;
    u32 Size = 0; // lines, at least one
    u32 Index = 0; // among the groups
};

// The numbers of linked lines, kept up to date: a line that comes or goes touches the lines of its group, and the groups
// behind it.
class LineNumbers
{
public:
    // A line that is about to be linked between these; null where there is none. Throws if there is no memory, and
    // nothing is changed then.
    void Add(CTextEditLine& line, CTextEditLine* previous, CTextEditLine* next);

    // A line that is about to be unlinked.
    void Remove(CTextEditLine& line);
    void Clear() { m_Groups.clear(); }

    // Whether the groups hold so many lines, and their own numbers follow one another.
    bool IsConsistent(u64 lines) const;

private:
    LineGroup& InsertGroup(std::size_t index, u64 firstNumber);
    void Split(LineGroup& group, CTextEditLine& line);
    void Renumber(std::size_t from);

    std::vector<std::unique_ptr<LineGroup>> m_Groups; // in the order of their lines
};
