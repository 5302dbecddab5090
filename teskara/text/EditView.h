#pragma once

#include "teskara/core/Export.h"
#include "teskara/text/LineStore.h"

// The caret of an edited text, and the window through which the text is seen: the caret pushes the window along where it
// steps over an edge. Columns are bytes. Without lines nothing moves.
class TESKARA_EXPORT EditView
{
public:
    explicit EditView(LineStore& lines) : Caret(lines), ViewTop(lines), ViewBottom(lines), m_Lines(lines) { }

    // No caret, and nothing is seen.
    void Clear();

    // To the start of the text, and the window with it to the first line.
    void ShowFirst();

    // False: it stands at the end of the line already. There is no way around it.
    bool MoveLeft();
    bool MoveRight();
    void MoveToLineStart();
    void MoveToLineEnd();

    // At most as far as there are lines. A shorter line takes the column back for good.
    void MoveUp(u64 lines);
    void MoveDown(u64 lines);
    void MoveToStart();
    void MoveToEnd();

    // Where the caret's bytes are, whatever has shortened the line.
    u64 HeldColumn() const;

    LivePosition Caret;
    LivePosition ViewTop; // the first line and the first column that show
    LivePosition ViewBottom; // the last line that shows
    u64 VisibleRows = 0; // that fit
    u64 VisibleColumns = 0;
    u32 DrawnRows = 0;

private:
    void FollowRight();
    CTextEditLine* FirstOfLastPage() const;
    CTextEditLine* LastOfFirstPage() const;

    LineStore& m_Lines;
};
