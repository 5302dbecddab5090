#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace host {

// A use of an object in the text of a script: UIElement("Ok").Parent:Show() begins with UIElement, and then has the
// steps Parent and Show. The names are borrowed from the text.
struct ObjectUse {
    struct Step {
        std::string_view Name;
        std::size_t Offset; // of the name in the text
        bool IsMethod;
    };

    std::string_view Object;
    std::vector<Step> Steps;
    bool IsAssigned = false; // a value is given to what the last step names
};

// The uses of objects of some names in a script; what stands in texts and comments is none.
std::vector<ObjectUse> FindObjectUses(std::string_view script, const std::vector<std::string_view>& objects);

} // namespace host
