#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <cstdint>
#include <limits>

class TreeRow;

// What a stretch of the marks of rows comes to.
struct TreeSpan {
    i32 Depth = 0; // rows that begin in it, less those that end
    i32 Closed = 0; // the same of collapsed rows
    i32 LeastClosed = std::numeric_limits<i32>::max() / 2; // the fewest collapsed rows around a row that begins in it
    u32 Least = 0; // how many rows have so few around them

    // How many of its rows show if so many collapsed ones lie around its beginning.
    u32 CountShown(i32 closedBefore) const { return closedBefore + LeastClosed == 0 ? Least : 0; }
};

// Where a row begins or ends among all rows: a member of a balanced binary tree, in which each knows the span of
// everything below it.
struct TreeMark {
    TreeRow* Row = nullptr;
    TreeMark* Parent = nullptr;
    TreeMark* Left = nullptr;
    TreeMark* Right = nullptr;
    u32 Priority = 0; // random; above those below it
    bool IsStart = false;
    TreeSpan Span;
};

// A row of a tree, made expanded. What it may hold lies between its marks.
class TESKARA_EXPORT TreeRow
{
public:
    TreeRow();
    TreeRow(const TreeRow&) = delete;
    TreeRow& operator=(const TreeRow&) = delete;

    bool IsExpanded() const { return m_IsExpanded; }

private:
    friend class TreeRows;

    TreeMark m_Start;
    TreeMark m_End;
    bool m_IsExpanded = true;
};

// The rows of a tree in the order in which they are drawn. A row shows if all rows around it are expanded. Whatever the
// shape of the tree, each operation takes time by the logarithm of the number of rows. The rows are borrowed; one that is
// in here must be removed before it ends, or end together with all.
class TESKARA_EXPORT TreeRows
{
public:
    TreeRows() = default;
    TreeRows(const TreeRows&) = delete;
    TreeRows& operator=(const TreeRows&) = delete;

    // These put a row, which is in here not yet and holds nothing: behind all others; as the last one that another one
    // holds; or beside another one.
    void Append(TreeRow& row);
    void AppendTo(TreeRow& holder, TreeRow& row);
    void InsertBefore(TreeRow& sibling, TreeRow& row);
    void InsertBehind(TreeRow& sibling, TreeRow& row);

    // Takes a row out with all that it holds.
    void Remove(TreeRow& row);

    // Forgets all rows.
    void Clear() { m_Top = nullptr; }

    // Expands a row or collapses it. One that is in here not yet keeps it for later.
    void SetExpanded(TreeRow& row, bool expanded);

    // How many rows show.
    u32 Count() const { return m_Top ? m_Top->Span.CountShown(0) : 0; }

    struct Shown {
        TreeRow* Row = nullptr;
        u32 Depth = 0; // how many rows hold it
    };

    // The row that shows at a place, counted from 0; null beyond the last.
    Shown At(u32 place) const;

private:
    struct Halves {
        TreeMark* Front;
        TreeMark* Back;
    };

    static Halves SplitBefore(TreeMark& mark);
    static Halves SplitBehind(TreeMark& mark);
    void Join(TreeMark* front, TreeMark* middle, TreeMark* back);
    TreeMark* MarksOf(TreeRow& row);
    u32 NextPriority();

    TreeMark* m_Top = nullptr;
    u64 m_Random = reinterpret_cast<std::uintptr_t>(this); // so that nobody knows the priorities to come
};
