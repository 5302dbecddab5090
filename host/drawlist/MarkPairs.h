#pragma once

#include "host/drawlist/DrawList.h"

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace host {

// A mark of an element's, with the operation that draws it.
struct ElementMark {
    std::string_view Operation;
    const DrawMark* Mark = nullptr;
};

// A mark before and after. One of them is null if it is there only once.
struct MarkPair {
    std::string_view Operation;
    const DrawMark* Before = nullptr;
    const DrawMark* After = nullptr;
};

// Finds out which of an element's marks is which: those that are the same, but for how far the element has moved as a
// whole, then those of the same operation between them, in their order.
std::vector<MarkPair> PairMarks(const std::vector<ElementMark>& before, const std::vector<ElementMark>& after);

} // namespace host
