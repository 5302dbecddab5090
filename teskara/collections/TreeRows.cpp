#include "teskara/collections/TreeRows.h"

#include <algorithm>

namespace {

TreeSpan operator+(const TreeSpan& front, const TreeSpan& back)
{
    const i32 leastInBack = front.Closed + back.LeastClosed;
    TreeSpan sum;
    sum.Depth = front.Depth + back.Depth;
    sum.Closed = front.Closed + back.Closed;
    sum.LeastClosed = std::min(front.LeastClosed, leastInBack);
    if (front.LeastClosed == sum.LeastClosed)
        sum.Least += front.Least;
    if (leastInBack == sum.LeastClosed)
        sum.Least += back.Least;
    return sum;
}

TreeSpan SpanBelow(const TreeMark* mark)
{
    return mark ? mark->Span : TreeSpan();
}

// Without what lies below it.
TreeSpan SpanOf(const TreeMark& mark)
{
    const i32 closed = mark.Row->IsExpanded() ? 0 : 1;
    TreeSpan span;
    span.Depth = mark.IsStart ? 1 : -1;
    span.Closed = mark.IsStart ? closed : -closed;
    if (mark.IsStart) {
        span.LeastClosed = 0;
        span.Least = 1;
    }
    return span;
}

void Refresh(TreeMark& mark)
{
    mark.Span = SpanBelow(mark.Left) + SpanOf(mark) + SpanBelow(mark.Right);
}

void RefreshUpwards(TreeMark* mark)
{
    for (; mark; mark = mark->Parent)
        Refresh(*mark);
}

void SetLeft(TreeMark& mark, TreeMark* left)
{
    mark.Left = left;
    if (left)
        left->Parent = &mark;
    Refresh(mark);
}

void SetRight(TreeMark& mark, TreeMark* right)
{
    mark.Right = right;
    if (right)
        right->Parent = &mark;
    Refresh(mark);
}

// Goes down along one edge of each, so the recursion is about as deep as the marks are.
TreeMark* Join(TreeMark* front, TreeMark* back)
{
    if (!front || !back)
        return front ? front : back;

    if (front->Priority > back->Priority) {
        SetRight(*front, Join(front->Right, back));
        return front;
    }
    SetLeft(*back, Join(front, back->Left));
    return back;
}

} // namespace

TreeRow::TreeRow()
{
    m_Start.Row = m_End.Row = this;
    m_Start.IsStart = true;
}

// Each mark further up goes, with its other side, to the half that it belongs to.
TreeRows::Halves TreeRows::SplitBefore(TreeMark& mark)
{
    Halves halves = {mark.Left, &mark};
    TreeMark* below = &mark;
    TreeMark* above = mark.Parent;
    SetLeft(mark, nullptr);
    while (above) {
        TreeMark* next = above->Parent;
        if (above->Right == below) {
            SetRight(*above, halves.Front);
            halves.Front = above;
        } else {
            SetLeft(*above, halves.Back);
            halves.Back = above;
        }
        below = above;
        above = next;
    }
    if (halves.Front)
        halves.Front->Parent = nullptr;
    halves.Back->Parent = nullptr;
    return halves;
}

TreeRows::Halves TreeRows::SplitBehind(TreeMark& mark)
{
    TreeMark* next = mark.Right;
    if (next) {
        while (next->Left)
            next = next->Left;
        return SplitBefore(*next);
    }

    // The next mark is the lowest one above it that it lies to the left of.
    TreeMark* below = &mark;
    for (next = mark.Parent; next && next->Right == below; next = next->Parent)
        below = next;
    return next ? SplitBefore(*next) : Halves{below, nullptr};
}

void TreeRows::Join(TreeMark* front, TreeMark* middle, TreeMark* back)
{
    m_Top = ::Join(::Join(front, middle), back);
    if (m_Top)
        m_Top->Parent = nullptr;
}

u32 TreeRows::NextPriority()
{
    m_Random = m_Random * 6364136223846793005u + 1442695040888963407u;
    return static_cast<u32>(m_Random >> 32);
}

// A new row's two marks, joined.
TreeMark* TreeRows::MarksOf(TreeRow& row)
{
    for (TreeMark* mark : {&row.m_Start, &row.m_End}) {
        mark->Priority = NextPriority();
        mark->Parent = mark->Left = mark->Right = nullptr;
        Refresh(*mark);
    }
    return ::Join(&row.m_Start, &row.m_End);
}

void TreeRows::Append(TreeRow& row)
{
    Join(m_Top, MarksOf(row), nullptr);
}

void TreeRows::AppendTo(TreeRow& holder, TreeRow& row)
{
    const auto [front, back] = SplitBefore(holder.m_End);
    Join(front, MarksOf(row), back);
}

void TreeRows::InsertBefore(TreeRow& sibling, TreeRow& row)
{
    const auto [front, back] = SplitBefore(sibling.m_Start);
    Join(front, MarksOf(row), back);
}

void TreeRows::InsertBehind(TreeRow& sibling, TreeRow& row)
{
    const auto [front, back] = SplitBehind(sibling.m_End);
    Join(front, MarksOf(row), back);
}

void TreeRows::Remove(TreeRow& row)
{
    TreeMark* front = SplitBefore(row.m_Start).Front;
    TreeMark* back = SplitBehind(row.m_End).Back;
    Join(front, nullptr, back);
}

void TreeRows::SetExpanded(TreeRow& row, bool expanded)
{
    row.m_IsExpanded = expanded;
    RefreshUpwards(&row.m_Start);
    RefreshUpwards(&row.m_End);
}

TreeRows::Shown TreeRows::At(u32 place) const
{
    TreeSpan before;
    for (const TreeMark* mark = m_Top; mark;) {
        const TreeSpan left = SpanBelow(mark->Left);
        const u32 shownOnLeft = left.CountShown(before.Closed);
        if (place < shownOnLeft) {
            mark = mark->Left;
            continue;
        }
        place -= shownOnLeft;
        before = before + left;
        const TreeSpan own = SpanOf(*mark);
        if (own.CountShown(before.Closed) != 0) {
            if (place == 0)
                return {mark->Row, static_cast<u32>(before.Depth)};
            --place;
        }
        before = before + own;
        mark = mark->Right;
    }
    return {};
}
