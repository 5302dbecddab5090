#include "teskara/script/TeskListBoxType.h"

#include "teskara/core/HostCalls.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/script/TeskListBoxItemType.h"

namespace {

// What a colour begins with that is given and cannot be read.
constexpr u32 UnreadableColor = 9;

u32 IDFrom(const Arguments& arguments)
{
    return static_cast<u32>(arguments.Integer(0));
}

const char* SortTypeName(const TeskListBox& list)
{
    return NameOfRowSortType(list.SortType);
}

ListBoxItem* FindItem(TeskListBox& list, const Arguments& arguments)
{
    return list.RetrieveItem(IDFrom(arguments));
}

ListBoxItem* FindOrdered(TeskListBox& list, const Arguments& arguments)
{
    return list.RetrieveOrdered(IDFrom(arguments) - 1);
}

ListBoxItem* FindByText(TeskListBox& list, const Arguments& arguments)
{
    return list.FindOrderedByText(arguments.Text(0));
}

ListBoxItem* FindByValue(TeskListBox& list, const Arguments& arguments)
{
    return list.FindOrderedByValue(arguments.Text(0));
}

ListBoxItem* FindSelected(TeskListBox& list, const Arguments& arguments)
{
    const u32 place = arguments.Has(0) ? IDFrom(arguments) : 1;
    return list.RetrieveItem(list.SelectedItems.At(place - 1));
}

u32 CountSelected(const TeskListBox& list)
{
    return list.SelectedItems.Count();
}

bool SetSortType(TeskListBox& list, const Arguments& arguments)
{
    const auto type = FindRowSortType(arguments.Text(0));
    if (!type)
        return false;

    list.SortType = *type;
    return true;
}

// The expression may end the list.
bool SetSelectMultiple(TeskListBox& list, const Arguments& arguments)
{
    const ElementWatch watch(list);
    const bool flag = arguments.Calculated(0);
    if (!watch.Exists())
        return false;

    list.SelectMultiple = flag;
    return true;
}

// An operation on one row.
template <void (TeskListBox::*Operation)(u32)> bool OnRow(TeskListBox& list, const Arguments& arguments)
{
    (list.*Operation)(IDFrom(arguments));
    return true;
}

bool AddItem(TeskListBox& list, const Arguments& arguments)
{
    u32 color = 0;
    if (arguments.Has(2)) {
        color = UnreadableColor;
        arguments.Color(2, color);
    }
    list.AddItem(arguments.Text(0), arguments.Text(1), color);
    return true;
}

bool SetItemText(TeskListBox& list, const Arguments& arguments)
{
    list.SetItemText(IDFrom(arguments), arguments.Has(1) ? arguments.Text(1) : nullptr);
    return true;
}

bool SetItemColor(TeskListBox& list, const Arguments& arguments)
{
    u32 color = 0;
    if (arguments.Color(1, color))
        list.SetItemColor(IDFrom(arguments), color);
    return true;
}

bool Sort(TeskListBox& list, const Arguments& arguments)
{
    if (!arguments.Has(0)) {
        list.ApplySort();
        return true;
    }

    const u32 atom = Host::FindAtom(arguments.Text(0));
    return atom != 0 && list.SortByAtom(atom);
}

// The colour of the selection shares the answer of the border's, and the setting of AutoSort that of SelectMultiple.
// clang-format off
constexpr ScriptMember<TeskListBox> Members[] = {
    {0,  "Font",            Script::Font<&TeskListBox::Font>},
    {1,  "TextColor",       Script::Int<&TeskListBox::TextColor>},
    {2,  "BackgroundColor", Script::Int<&TeskListBox::BackgroundColor>},
    {3,  "Border",          Script::Int<&TeskListBox::Border>},
    {4,  "BorderColor",     Script::Int<&TeskListBox::BorderColor>},
    {5,  "SelectionColor",  Script::Int<&TeskListBox::BorderColor>},
    {6,  "SortType",        Script::String<SortTypeName>},
    {7,  "SelectMultiple",  Script::Bool<&TeskListBox::SelectMultiple>},
    {8,  "AutoSort",        Script::Bool<&TeskListBox::AutoSort>},
    {9,  "Item",            Script::Item<FindItem>, 1},
    {10, "Items",           Script::Int<&TeskListBox::GetItemCount>},
    {11, "OrderedItem",     Script::Item<FindOrdered>, 1},
    {12, "ItemByText",      Script::Item<FindByText>, 1},
    {13, "ItemByValue",     Script::Item<FindByValue>, 1},
    {14, "SelectedItem",    Script::Item<FindSelected>},
    {15, "SelectedItems",   Script::Int64<CountSelected>},
    {16, "Texture",         Script::Texture<&TeskListBox::Texture>},
};

constexpr ScriptMethod<TeskListBox> Methods[] = {
    {0,  "SetTextColor",       Script::SetColor<&TeskListBox::TextColor>},
    {1,  "SetBackgroundColor", Script::SetColor<&TeskListBox::BackgroundColor>},
    {2,  "SetBorderColor",     Script::SetColor<&TeskListBox::BorderColor>},
    {3,  "SetSelectionColor",  Script::SetColor<&TeskListBox::SelectionColor>},
    {4,  "SetSortType",        SetSortType, 1},
    {5,  "SetSelectMultiple",  SetSelectMultiple, 1},
    {6,  "SetAutoSort",        SetSelectMultiple, 1},
    {7,  "DeselectItem",       OnRow<&TeskListBox::DeselectItem>, 1},
    {8,  "SelectItem",         OnRow<&TeskListBox::SelectItem>, 1},
    {9,  "ItemToggleSelect",   OnRow<&TeskListBox::ItemToggleSelect>, 1},
    {10, "ClearSelection",     Script::Call<&TeskListBox::ClearSelection>},
    {11, "AddItem",            AddItem, 1},
    {12, "RemoveItem",         OnRow<&TeskListBox::RemoveItem>, 1},
    {13, "ClearItems",         Script::Call<&TeskListBox::ClearItems>},
    {14, "SetItemText",        SetItemText, 1},
    {15, "SetItemColor",       SetItemColor, 1},
    {16, "Sort",               Sort},
};
// clang-format on

} // namespace

TeskListBoxType::TeskListBoxType(const char* name) : ElementType(name, Members, Methods) { }
