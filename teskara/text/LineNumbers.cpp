#include "teskara/text/LineNumbers.h"

#include "teskara/text/CTextEditLine.h"

namespace {

// Lines.
constexpr u32 MostInGroup = 256;

} // namespace

// Groups from an index on take their places behind the one before.
void LineNumbers::Renumber(std::size_t from)
{
    u64 number = from == 0 ? 0 : m_Groups[from - 1]->FirstNumber + m_Groups[from - 1]->Size;
    for (std::size_t index = from; index < m_Groups.size(); ++index) {
        LineGroup& group = *m_Groups[index];
        group.FirstNumber = number;
        group.Index = static_cast<u32>(index);
        number += group.Size;
    }
}

// The caller renumbers what follows.
LineGroup& LineNumbers::InsertGroup(std::size_t index, u64 firstNumber)
{
    auto group = std::make_unique<LineGroup>(LineGroup{firstNumber, 0, static_cast<u32>(index)});
    return **m_Groups.insert(m_Groups.begin() + static_cast<std::ptrdiff_t>(index), std::move(group));
}

// Moves the second half of a full group into a new one. line: one of the group.
void LineNumbers::Split(LineGroup& group, CTextEditLine& line)
{
    constexpr u32 half = MostInGroup / 2;
    LineGroup& second = InsertGroup(group.Index + 1, group.FirstNumber + half);
    CTextEditLine* middle = &line;
    while (middle->m_Place > half)
        middle = middle->Previous;
    while (middle->m_Place < half)
        middle = middle->Next;

    for (; middle && middle->m_Group == &group; middle = middle->Next) {
        middle->m_Group = &second;
        middle->m_Place = second.Size++;
    }
    group.Size = half;
    Renumber(second.Index);
}

// A line behind the last one leaves a full group as it is, so that a text that is read fills its groups.
void LineNumbers::Add(CTextEditLine& line, CTextEditLine* previous, CTextEditLine* next)
{
    CTextEditLine* neighbor = previous ? previous : next;
    LineGroup* group = neighbor ? neighbor->m_Group : nullptr;
    if (!group || (group->Size == MostInGroup && !next)) {
        group = &InsertGroup(m_Groups.size(), group ? group->FirstNumber + group->Size : 0);
    } else if (group->Size == MostInGroup) {
        Split(*group, *neighbor);
        group = neighbor->m_Group;
    }

    line.m_Group = group;
    line.m_Place = previous && previous->m_Group == group ? previous->m_Place + 1 : 0;
    for (; next && next->m_Group == group; next = next->Next)
        ++next->m_Place;
    ++group->Size;
    Renumber(group->Index + 1);
}

void LineNumbers::Remove(CTextEditLine& line)
{
    LineGroup* group = line.m_Group;
    for (CTextEditLine* next = line.Next; next && next->m_Group == group; next = next->Next)
        --next->m_Place;

    line.m_Group = nullptr;
    const std::size_t index = group->Index;
    if (--group->Size == 0) {
        m_Groups.erase(m_Groups.begin() + static_cast<std::ptrdiff_t>(index));
        Renumber(index);
    } else {
        Renumber(index + 1);
    }
}

bool LineNumbers::IsConsistent(u64 lines) const
{
    u64 number = 0;
    for (std::size_t index = 0; index < m_Groups.size(); ++index) {
        const LineGroup& group = *m_Groups[index];
        if (group.FirstNumber != number || group.Index != index || group.Size == 0 || group.Size > MostInGroup)
            return false;
        number += group.Size;
    }
    return number == lines;
}
