#include "tests/fuzz/ListModel.h"

#include <algorithm>

std::vector<ListModel::Row>::iterator ListModel::Find(u32 id)
{
    return std::find_if(Rows.begin(), Rows.end(), [id](const Row& row) { return row.ID == id; });
}

void ListModel::Add(const std::string& text, const std::string& value)
{
    u32 id = 1;
    while (Has(id))
        ++id;
    Rows.push_back({id, text, value});
    Sort();
}

void ListModel::Remove(u32 id)
{
    if (!Has(id))
        return;
    if (DragItem == id)
        DragItem = 0;
    Deselect(id);
    Rows.erase(Find(id));
}

void ListModel::Clear()
{
    ClearSelection();
    Rows.clear();
    DragItem = 0;
}

void ListModel::SetText(u32 id, std::optional<std::string> text)
{
    if (!Has(id))
        return;
    Find(id)->Text = std::move(text);
    Sort();
}

void ListModel::Sort()
{
    const auto byText = [](const Row& left, const Row& right) {
        return left.Text.value_or("") < right.Text.value_or("");
    };
    const auto byValue = [](const Row& left, const Row& right) { return left.Value < right.Value; };
    const auto reversed = [](auto order) {
        return [order](const Row& left, const Row& right) { return order(right, left); };
    };
    if (SortType == SortText)
        std::stable_sort(Rows.begin(), Rows.end(), byText);
    else if (SortType == SortValue)
        std::stable_sort(Rows.begin(), Rows.end(), byValue);
    else if (SortType == SortTextReverse)
        std::stable_sort(Rows.begin(), Rows.end(), reversed(byText));
    else if (SortType == SortValueReverse)
        std::stable_sort(Rows.begin(), Rows.end(), reversed(byValue));
}

void ListModel::Select(u32 id)
{
    if (!Has(id))
        return;
    if (!SelectMultiple)
        ClearSelection();
    Selected.insert(id);
    Tell(id);
}

void ListModel::Deselect(u32 id)
{
    if (Selected.erase(id) != 0)
        Tell(id);
}

void ListModel::Toggle(u32 id)
{
    if (!Has(id))
        return;
    if (Selected.erase(id) == 0)
        Selected.insert(id);
    Tell(id);
}

void ListModel::ClearSelection()
{
    while (!Selected.empty())
        Deselect(*Selected.begin());
}

void ListModel::Press(u32 place, bool control)
{
    Dragged = false;
    if (place >= Rows.size())
        return;

    const u32 id = Rows[place].ID;
    if (SortType == SortUser)
        DragItem = id;
    const bool isSelected = Selected.count(id) != 0;
    if (SelectMultiple && control) {
        if (isSelected)
            Deselect(id);
        else
            Select(id);
    } else if (!isSelected) {
        ClearSelection();
        Select(id);
    } else if (!SelectMultiple) {
        ClearSelection();
    }
}

void ListModel::DragTo(u32 place)
{
    if (DragItem == 0)
        return;

    const auto dragged = Find(DragItem);
    const auto from = static_cast<std::size_t>(dragged - Rows.begin());
    const std::size_t to = std::min<std::size_t>(place, Rows.size() - 1);
    if (from == to)
        return;

    Dragged = true;
    const Row row = *dragged;
    Rows.erase(dragged);
    Rows.insert(Rows.begin() + static_cast<std::ptrdiff_t>(to), row);
}

void ListModel::Release()
{
    DragItem = 0;
}
