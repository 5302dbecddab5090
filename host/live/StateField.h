#pragma once

#include <optional>
#include <span>
#include <string>

class TeskElement;

namespace host {

// Something that a user can change of an element, as a text.
struct StateField {
    const char* Name;
    bool AfterFrame; // the element takes it only when it has been drawn

    // Nothing: the element has no such thing.
    std::optional<std::string> (*Read)(TeskElement& element);

    // Takes what Read gave, of an element of the same kind. May run scripts; afterwards the element may be gone.
    void (*Write)(TeskElement& element, const std::string& value);
};

// All there are, in the order in which they are to be put back.
std::span<const StateField> StateFields();

} // namespace host
