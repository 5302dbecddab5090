#pragma once

#include "teskara/core/Types.h"
#include "teskara/markup/XMLDocument.h"

#include <vector>

class TeskElement;

// Markup of elements of all kinds, with every value that the schema knows of them: once with ordinary texts, once with
// texts at the ends of what there is, and once with none.
class ElementStock
{
public:
    // The toolkit must have been started.
    ElementStock();

    // Makes an element under the screen. Null: it did not outlive its own scripts.
    TeskElement* Make(u8 number, const char* name) const;

private:
    XMLDocument m_Document;
    std::vector<XMLNode*> m_Elements;
};
