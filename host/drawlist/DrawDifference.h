#pragma once

#include "host/drawlist/DrawList.h"

#include <string>
#include <vector>

namespace host {

// What has become of an element, in words: "moved from (10,10) to (12,10)".
struct DrawDifference {
    std::string Element; // its full name; empty for the frame as a whole
    std::string Text;
};

// What is different in the second list, in the order of the elements in the first, then of those that are new. Empty only
// if both draw the same.
std::vector<DrawDifference> CompareDrawLists(const DrawList& before, const DrawList& after);

// A line for each.
std::string DrawDifferencesAsText(const std::vector<DrawDifference>& differences);

} // namespace host
