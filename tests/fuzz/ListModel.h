#pragma once

#include "teskara/collections/RowSortType.h"
#include "teskara/core/Types.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

// What a list box and a combo box around it are, written down as plainly as possible: rows in a vector, sorted at once.
class ListModel
{
public:
    struct Row {
        u32 ID;
        std::optional<std::string> Text;
        std::string Value;
    };

    void Add(const std::string& text, const std::string& value);
    void Remove(u32 id);
    void Clear();
    void SetText(u32 id, std::optional<std::string> text);
    void Sort();
    void Select(u32 id);
    void Deselect(u32 id);
    void Toggle(u32 id);
    void ClearSelection();

    // A press on a row that shows, counted from the first row of all; then a drag to such a row, and the release.
    void Press(u32 place, bool control);
    void DragTo(u32 place);
    void Release();

    std::vector<Row> Rows; // from top to bottom
    std::set<u32> Selected;
    u32 SortType = SortNone;
    bool SelectMultiple = false;
    u32 DragItem = 0;
    bool Dragged = false;
    u32 Shown = 0; // by the combo box

private:
    std::vector<Row>::iterator Find(u32 id);
    bool Has(u32 id) { return Find(id) != Rows.end(); }
    void Tell(u32 id) { Shown = Selected.count(id) != 0 ? id : 0; }
};
