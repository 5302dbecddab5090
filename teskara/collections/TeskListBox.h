#pragma once

#include "teskara/collections/RowOrder.h"
#include "teskara/collections/RowSet.h"
#include "teskara/collections/RowStore.h"
#include "teskara/element/TeskElement.h"
#include "teskara/element/TeskFont.h"
#include "teskara/element/TeskTexture.h"

#include <memory>

class TeskScrollBar;

// A scrolling list of rows of text, of which one or several can be selected. Rows are known by their ids: 0 is none, and
// an operation on an id that no row has does nothing and gives 0 or false.
//
// What is selected and deselected, also by the operations, is told to the list's scripts and to its parents; both may
// change the list, or end it.
class TESKARA_EXPORT TeskListBox : public TeskElement
{
public:
    using TeskElement::TeskElement;
    ~TeskListBox() override;

    bool FromXML(XMLNode* node, XMLNode* templateNode) override;
    bool IsTypeOf(const char* word) override;
    void RecalculateSize(bool recurse) override;
    void Render() override;
    bool OnLMouseUp(_Point2i& point) override;
    bool OnLMouseDown(_Point2i& point) override;
    bool OnLMouseDoubleClick(_Point2i& point) override;
    bool OnMouseMove(_Point2i& point) override;
    bool OnMouseWheel(int offset) override;
    void OnNotify(TeskElement* source, unsigned int code, unsigned long long value) override;
    MvTypeDefinition* GetMvType() override;

    // --- Selection

    virtual void DeselectItem(u32 id);

    // Deselects all others first, unless several may be selected. Tells it even if the row was selected before.
    virtual void SelectItem(u32 id);

    // Leaves the others as they are, whatever may be selected.
    virtual void ItemToggleSelect(u32 id);
    virtual void ClearSelection();

    // --- Rows

    // A null text or value is empty; a color of 0 is TextColor. Returns the id; 0 if there is no memory.
    virtual u32 AddItem(const char* text, const char* value, u32 color);

    // Deselects the row first.
    virtual void RemoveItem(u32 id);
    virtual void ClearItems();

    // The row's value read as a decimal number. False: there is no such row.
    virtual bool GetItemValue(u32 id, u32& out);

    // Sorts anew, also if rows that are added are not sorted in. A null text is none.
    virtual void SetItemText(u32 id, const char* text);
    virtual void SetItemColor(u32 id, u32 color);

    // The row with the lowest id that has exactly this text or value, in any case. The second argument is not used.
    virtual u32 FindItemByText(const char* text, u32 unused);
    virtual u32 FindItemByValue(const char* value, u32 unused);

    // The row under a point of the screen, if its height lies within the list's.
    virtual u32 GetItemFromPoint(_Point2i& point);

    // The place in the order that is nearest to a point of the screen; 0 without rows.
    virtual u32 GetOrderFromPoint(_Point2i& point);

    // Sorts as SortType says.
    virtual void ApplySort();

    // --- Beyond the virtual operations

    // Null: there is none. Valid until the row is removed.
    ListBoxItem* RetrieveItem(u32 id) { return m_Rows.Find(id); }

    // The first row from the top that has exactly this text or value, in any case; null if there is none.
    ListBoxItem* FindOrderedByText(const char* text);
    ListBoxItem* FindOrderedByValue(const char* value);
    ListBoxItem* RetrieveOrdered(u32 order) { return m_Order.At(order); }
    u32 OrderOf(const ListBoxItem& item) { return m_Order.RowOf(item); }
    u32 GetItemCount() const { return m_Order.Count(); }

    // Changes of a row that leave it where it is.
    void ReplaceText(ListBoxItem& item, const char* text);
    void ReplaceValue(ListBoxItem& item, const char* value);

    // Sorts by a script's answers, which may make no sense. Rows that the script adds or removes meanwhile leave the
    // order as it was. False: the list is being sorted by such answers already, or there is no memory.
    bool SortByAtom(u32 atom);

    // Adds the rows that an element of markup lists; null has none. Afterwards the list may be gone.
    void AddItems(XMLNode* items);

    std::unique_ptr<TeskFont> Font; // takes the colour of each row that it draws
    u32 BackgroundColor = 0;
    u32 Border = 0;
    u32 BorderColor = 0;
    u32 SelectionColor = 0;
    u32 SortType = SortNone;
    bool SelectMultiple = false;
    std::unique_ptr<TeskTexture> Texture;
    ScriptPointer OnSelect;
    ScriptPointer OnDeSelect;
    u32 TextColor = 0; // of rows without a colour of their own
    TeskScrollBar* ScrollBar = nullptr; // a child; its high end is the top of the list
    bool AutoSort = false; // whether each new row is sorted in

    // How SortCustom sorts: above 0 if right belongs above left. Its answers may make no sense, as those of a script.
    // Null: nothing sorts so by itself, and only a script's Sort does.
    int (*CustomCompare)(const ListBoxItem* left, const ListBoxItem* right) = nullptr;

    u32 TopOrder = 0; // first row that shows
    RowSet SelectedItems;
    u32 DragItem = 0; // id of the row that is being dragged
    bool Dragged = false; // since the last press a row has moved

private:
    u32 Pitch() const;
    u32 VisibleRows() const { return Height / Pitch(); }
    bool FitScrollBar();
    bool IsOnScrollBar(_Point2i& point) const;
    void DrawRows();
    void PressRow(u32 id);
    void TellSelection(const ScriptPointer& script, u32 id);
    template <class Compare> bool SortBy(Compare&& compare);

    RowStore m_Rows;
    RowOrder m_Order;
    bool m_IsSorting = false; // by somebody's answers
};
