#include "teskara/element/EventNames.h"

#include "teskara/element/MarkupRows.h"

#include <set>
#include <string_view>

const char* NameOfEvent(const TeskElement& element, u32 atom)
{
    for (const MarkupRows* rows = MarkupRows::First(); rows; rows = rows->Next()) {
        if (const char* name = rows->NameOfEvent(element, atom))
            return name;
    }
    return nullptr;
}

// Several kinds may have an event of the same name.
std::vector<const char*> EventNames()
try {
    std::vector<const char*> names;
    std::set<std::string_view> ofSomeKinds;
    for (const MarkupRows* table = MarkupRows::First(); table; table = table->Next()) {
        std::vector<MarkupRow> rows;
        table->AppendTo(rows);
        for (const MarkupRow& row : rows) {
            if (row.IsEvent && table->IsOfEveryKind())
                names.push_back(row.Tag);
            else if (row.IsEvent)
                ofSomeKinds.insert(row.Tag);
        }
    }
    for (const std::string_view name : ofSomeKinds)
        names.push_back(name.data());
    return names;
} catch (...) {
    return {};
}
