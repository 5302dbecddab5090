#pragma once

#include "teskara/collections/TeskListBox.h"
#include "teskara/script/ElementType.h"

// tesklistbox: the looks, the rows and the selection of a list box.
class TeskListBoxType : public ElementType<TeskListBox>
{
public:
    explicit TeskListBoxType(const char* name);
};
