// What a list box holds: its rows, their order and their selection. Scripts run by the selection's events, so ids are
// looked up again behind each.

#include "teskara/collections/MergeSort.h"
#include "teskara/collections/TeskListBox.h"
#include "teskara/core/AsciiCase.h"
#include "teskara/core/BoundedText.h"
#include "teskara/core/HostCalls.h"
#include "teskara/core/Limits.h"
#include "teskara/core/Numbers.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/script/MvTypeVar.h"

#include <vector>

namespace {

// Room for the text of any 32-bit number.
constexpr u32 NumberTextSize = 32;

bool HasText(const ListBoxItem& item, const char* text)
{
    return text && item.Text && EqualsNoCase(*item.Text, text);
}

bool HasValue(const ListBoxItem& item, const char* value)
{
    return value && EqualsNoCase(item.GetValue(), value);
}

template <class Test> u32 FindByID(RowStore& rows, Test&& test)
{
    for (u32 id = 1; id <= rows.LastID(); ++id) {
        const ListBoxItem* item = rows.Find(id);
        if (item && test(*item))
            return id;
    }
    return 0;
}

template <class Test> ListBoxItem* FindByOrder(RowOrder& order, Test&& test)
{
    for (ListBoxItem* item : order.Rows()) {
        if (test(*item))
            return item;
    }
    return nullptr;
}

// What a script says to two rows of a list: below 0, 0 or above 0.
int CompareByAtom(u32 atom, TeskListBox& list, const ListBoxItem& left, const ListBoxItem& right)
{
    char leftID[NumberTextSize];
    char rightID[NumberTextSize];
    WriteInteger(leftID, sizeof(leftID), left.ID);
    WriteInteger(rightID, sizeof(rightID), right.ID);
    char* arguments[] = {leftID, rightID};
    const ElementWatch watch(list);
    _MvTypeVar self;
    self.Type = list.GetMvType();
    if (!watch.Exists())
        return 0;
    self.Value.Object = &list;
    char answer[Limits::TextBuffer512];
    Host::ExecuteAtomForText(atom, 2, arguments, &self, answer, sizeof(answer));
    return ReadInteger(answer);
}

} // namespace

u32 TeskListBox::AddItem(const char* text, const char* value, u32 color)
{
    ListBoxItem* item = m_Rows.Add(this, text, value, color != 0 ? color : TextColor);
    if (!item)
        return 0;
    if (!m_Order.Append(*item)) {
        m_Rows.Remove(*item);
        return 0;
    }

    const u32 id = item->ID;
    const ElementWatch self(*this);
    FitScrollBar();
    if (self.Exists() && AutoSort)
        ApplySort();
    return id;
}

// The script that hears of it may remove the row itself and add another one under the same id, or select the row again.
void TeskListBox::RemoveItem(u32 id)
{
    const ListBoxItem* item = RetrieveItem(id);
    if (!item)
        return;

    if (DragItem == id)
        DragItem = 0;
    const u64 serial = item->Serial;
    const ElementWatch self(*this);
    DeselectItem(id);
    if (!self.Exists())
        return;

    ListBoxItem* present = RetrieveItem(id);
    if (!present || present->Serial != serial)
        return;

    SelectedItems.Remove(id);
    m_Order.Remove(*present);
    m_Rows.Remove(*present);
}

void TeskListBox::ClearItems()
{
    const ElementWatch self(*this);
    ClearSelection();
    if (!self.Exists())
        return;

    TopOrder = 0;
    DragItem = 0;
    m_Order.Clear();
    m_Rows.Clear();
}

bool TeskListBox::GetItemValue(u32 id, u32& out)
{
    const ListBoxItem* item = RetrieveItem(id);
    if (!item)
        return false;

    out = static_cast<u32>(ReadInteger(item->GetValue()));
    return true;
}

void TeskListBox::SetItemText(u32 id, const char* text)
{
    ListBoxItem* item = RetrieveItem(id);
    if (!item)
        return;

    ReplaceText(*item, text);
    ApplySort();
}

void TeskListBox::SetItemColor(u32 id, u32 color)
{
    if (ListBoxItem* item = RetrieveItem(id))
        item->Color = color;
}

void TeskListBox::ReplaceText(ListBoxItem& item, const char* text)
{
    m_Order.Settle();
    item.SetText(text);
}

void TeskListBox::ReplaceValue(ListBoxItem& item, const char* value)
{
    m_Order.Settle();
    item.SetValue(value);
}

u32 TeskListBox::FindItemByText(const char* text, u32)
{
    return FindByID(m_Rows, [text](const ListBoxItem& item) { return HasText(item, text); });
}

u32 TeskListBox::FindItemByValue(const char* value, u32)
{
    return FindByID(m_Rows, [value](const ListBoxItem& item) { return HasValue(item, value); });
}

ListBoxItem* TeskListBox::FindOrderedByText(const char* text)
{
    return FindByOrder(m_Order, [text](const ListBoxItem& item) { return HasText(item, text); });
}

ListBoxItem* TeskListBox::FindOrderedByValue(const char* value)
{
    return FindByOrder(m_Order, [value](const ListBoxItem& item) { return HasValue(item, value); });
}

void TeskListBox::ApplySort()
{
    if (SortType == SortCustom && CustomCompare)
        SortBy(CustomCompare);
    else
        m_Order.Sort(SortType);
}

bool TeskListBox::SortByAtom(u32 atom)
{
    return SortBy([this, atom](const ListBoxItem* left, const ListBoxItem* right) {
        return CompareByAtom(atom, *this, *left, *right);
    });
}

// What compares may run scripts. Once rows have come or gone no row of the copy is looked at any more.
template <class Compare> bool TeskListBox::SortBy(Compare&& compare)
{
    if (m_IsSorting)
        return false;

    const ElementWatch self(*this);
    const u32 changes = m_Order.GetChanges();
    const auto isAsBefore = [&] { return self.Exists() && m_Order.GetChanges() == changes; };
    std::vector<ListBoxItem*> rows;
    try {
        rows.assign(m_Order.Rows().begin(), m_Order.Rows().end());
        m_IsSorting = true;
        MergeSort(rows,
            [&](const ListBoxItem* left, const ListBoxItem* right) { return isAsBefore() ? compare(left, right) : 0; });
    } catch (...) {
        if (self.Exists())
            m_IsSorting = false;
        return false;
    }
    if (!self.Exists())
        return true;

    m_IsSorting = false;
    if (isAsBefore())
        m_Order.Arrange(rows);
    return true;
}

void TeskListBox::TellSelection(const ScriptPointer& script, u32 id)
{
    char text[NumberTextSize];
    WriteInteger(text, sizeof(text), id);
    const ElementWatch self(*this);
    RunScript(script, text);
    if (self.Exists())
        NotifyParent(NotifySelectionChanged, id);
}

void TeskListBox::SelectItem(u32 id)
{
    if (!RetrieveItem(id))
        return;

    const ElementWatch self(*this);
    if (!SelectMultiple)
        ClearSelection();
    if (self.Exists() && RetrieveItem(id) && SelectedItems.Insert(id))
        TellSelection(OnSelect, id);
}

void TeskListBox::DeselectItem(u32 id)
{
    if (SelectedItems.Remove(id))
        TellSelection(OnDeSelect, id);
}

void TeskListBox::ItemToggleSelect(u32 id)
{
    if (SelectedItems.Contains(id))
        DeselectItem(id);
    else if (RetrieveItem(id) && SelectedItems.Insert(id))
        TellSelection(OnSelect, id);
}

// What the events select meanwhile does not stay selected.
void TeskListBox::ClearSelection()
{
    const u32 last = SelectedItems.Last();
    const ElementWatch self(*this);
    for (u32 id = SelectedItems.FirstAfter(0); id != 0 && id <= last; id = SelectedItems.FirstAfter(id)) {
        DeselectItem(id);
        if (!self.Exists())
            return;
    }
    SelectedItems.Clear();
}
