#include "teskara/element/EventNames.h"

#include "teskara/element/EventRows.h"

#include <set>
#include <string_view>

const char* NameOfEvent(const TeskElement& element, u32 atom)
{
    for (const EventRows* rows = EventRows::First(); rows; rows = rows->Next()) {
        if (const char* name = rows->NameOf(element, atom))
            return name;
    }
    return nullptr;
}

// Several kinds may have an event of the same name.
std::vector<const char*> EventNames()
try {
    std::vector<const char*> names;
    std::set<std::string_view> ofSomeKinds;
    for (const EventRows* rows = EventRows::First(); rows; rows = rows->Next()) {
        std::vector<const char*> own;
        rows->AppendNames(own);
        if (rows->IsOfEveryKind())
            names.swap(own);
        else
            ofSomeKinds.insert(own.begin(), own.end());
    }
    for (const std::string_view name : ofSomeKinds)
        names.push_back(name.data());
    return names;
} catch (...) {
    return {};
}
