#pragma once

#include "host/serve/JsonLine.h"

#include <string>
#include <string_view>
#include <vector>

class TeskElement;

namespace host {

// What is told of an element: its full name, its kind, where it is on the screen, whether it can be seen, and its text if
// it has one. Asking for the text may run scripts.
Json ReportElement(TeskElement& element);

// The same with its children, from the bottom of the picture to its top, so many levels down.
Json ReportTree(TeskElement& element, int levels);

// Which elements somebody looks for. What is empty does not matter.
struct ElementQuery {
    std::string Name; // the full name or the short one, in any case; * stands for anything, ? for a character
    std::string Kind;
    std::string Text; // a part of it, in any case
    bool OnlyVisible = false;
};

// In the order of the tree, at most so many.
Json FindElements(const ElementQuery& query, std::size_t most);

// The element of a full name. Throws ServeFault if there is none, with the name that was probably meant.
TeskElement& NamedElement(const std::string& name);

} // namespace host
