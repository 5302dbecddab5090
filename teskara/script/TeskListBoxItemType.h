#pragma once

#include "teskara/collections/ListBoxItem.h"
#include "teskara/script/ScriptResults.h"
#include "teskara/script/TableType.h"

// The row that a value stands for; null if it has ended meanwhile.
ListBoxItem* ListBoxItemOf(MvValue value);

// tesklistboxitem: a row of a list box. As a text it is the row's text. Of a row that has ended only the text is left: it
// is "Error".
class TeskListBoxItemType : public TableType<ListBoxItem, ListBoxItemOf>
{
public:
    explicit TeskListBoxItemType(const char* name);

    bool GetMember(MvValue value, _MvTypeMember& member, int argc, char** argv, _MvTypeVar& result) override;
    bool ToText(MvValue value, char* buffer, u32 size) override;
};

// The row's address and, in the second word, its serial number, which tells it from a later row at the same address.
struct ListBoxItemValue {
    static constexpr const char* Name = "tesklistboxitem";
    static MvTypeDefinition* Put(MvValue& value, ListBoxItem* item);
};

namespace Script {

template <auto Source> inline constexpr ResultOf<ListBoxItemValue, Source> Item;

} // namespace Script
