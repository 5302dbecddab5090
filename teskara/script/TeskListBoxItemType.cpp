#include "teskara/script/TeskListBoxItemType.h"

#include "teskara/collections/TeskListBox.h"
#include "teskara/core/BoundedText.h"
#include "teskara/script/HeldObject.h"
#include "teskara/script/ScriptActions.h"

#include <cstring>

namespace {

constexpr u32 TextMemberID = 4;
constexpr char TextOfDeadRow[] = "Error";

u32 GetOrder(ListBoxItem& item)
{
    return item.pListBox->OrderOf(item);
}

bool SetText(ListBoxItem& item, const Arguments& arguments)
{
    item.pListBox->ReplaceText(item, arguments.Has(0) ? arguments.Text(0) : nullptr);
    return true;
}

bool SetValue(ListBoxItem& item, const Arguments& arguments)
{
    item.pListBox->ReplaceValue(item, arguments.Text(0));
    return true;
}

// One of the list's operations on the row.
template <void (TeskListBox::*Operation)(u32)> void OnList(ListBoxItem& item)
{
    (item.pListBox->*Operation)(item.ID);
}

// Done, and yet it tells of failure.
bool Remove(ListBoxItem& item, const Arguments&)
{
    item.pListBox->RemoveItem(item.ID);
    return false;
}

// clang-format off
constexpr ScriptMember<ListBoxItem> Members[] = {
    {0, "TextColor",     Script::Int<&ListBoxItem::Color>},
    {1, "ID",            Script::Int<&ListBoxItem::ID>},
    {2, "Value",         Script::String<&ListBoxItem::GetValue>},
    {3, "Order",         Script::Int<GetOrder>},
    {TextMemberID, "Text", Script::String<&ListBoxItem::GetText>},
};

constexpr ScriptMethod<ListBoxItem> Methods[] = {
    {0, "SetText",      SetText},
    {1, "SetTextColor", Script::SetColor<&ListBoxItem::Color>},
    {2, "SetValue",     SetValue, 1},
    {3, "Select",       Script::Call<OnList<&TeskListBox::SelectItem>>},
    {4, "Deselect",     Script::Call<OnList<&TeskListBox::DeselectItem>>},
    {5, "Toggle",       Script::Call<OnList<&TeskListBox::ItemToggleSelect>>},
    {6, "Remove",       Remove},
};
// clang-format on

} // namespace

ListBoxItem* ListBoxItemOf(MvValue value)
{
    return NumberedObject<ListBoxItem>(value);
}

MvTypeDefinition* ListBoxItemValue::Put(MvValue& value, ListBoxItem* item)
{
    return PutNumbered(value, item) ? pTeskListBoxItemType : nullptr;
}

TeskListBoxItemType::TeskListBoxItemType(const char* name) : TableType(name, Members, Methods) { }

bool TeskListBoxItemType::GetMember(MvValue value, _MvTypeMember& member, int argc, char** argv, _MvTypeVar& result)
{
    if (!value.Object || ListBoxItemOf(value) || member.ID != TextMemberID)
        return TableType::GetMember(value, member, argc, argv, result);

    result.Type = Script::StringValue::Put(result.Value, TextOfDeadRow);
    return result.Type != nullptr;
}

bool TeskListBoxItemType::ToText(MvValue value, char* buffer, u32 size)
{
    const ListBoxItem* item = ListBoxItemOf(value);
    if (!item || !item->Text || !buffer)
        return false;

    CopyBounded(buffer, size, *item->Text);
    return true;
}
