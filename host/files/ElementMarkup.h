#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host {

class UsedFiles;

// The markup of an element, as it stands in the interface files that were loaded; in the last one that has it. name: from
// the element outwards, as in "Save@Client@Dialogs". What has no name of its own goes by its tag, as a window's client
// does, or is left out. Names are compared without regard to case. Nothing: none of the files has the element.
std::optional<std::string> FindElementMarkup(const UsedFiles& files, std::string_view name);

} // namespace host
