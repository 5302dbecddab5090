#pragma once

#include "teskara/collections/CTeskTab.h"
#include "teskara/script/ScriptResults.h"
#include "teskara/script/TableType.h"

// The tab that a value stands for; null if it has ended meanwhile.
CTeskTab* TabOf(MvValue value);

// tesktab: a tab of a tab control. As a text it is the tab's name. What it has no name for, the frame of the tab answers.
class TeskTabType : public TableType<CTeskTab, TabOf>
{
public:
    explicit TeskTabType(const char* name);

    int UnknownIndex(MvValue value, int argc, char** argv, _MvTypeVar& result) override;
    int UnknownMember(MvValue value, const char* name, int argc, char** argv, _MvTypeVar& result) override;
    int UnknownMethod(MvValue value, const char* name, int argc, char** argv) override;
    bool ToText(MvValue value, char* buffer, u32 size) override;
};

// The tab's address and, in the second word, its serial number, which tells it from a later tab at the same address.
struct TabValue {
    static constexpr const char* Name = "tesktab";
    static MvTypeDefinition* Put(MvValue& value, CTeskTab* tab);
};

namespace Script {

template <auto Source> inline constexpr ResultOf<TabValue, Source> Tab;

} // namespace Script
