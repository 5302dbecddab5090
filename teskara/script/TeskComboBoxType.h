#pragma once

#include "teskara/collections/TeskComboBox.h"
#include "teskara/script/ElementType.h"

// teskcombobox: the looks of a combo box and what it shows. Its rows are its list's, which is its child "List".
class TeskComboBoxType : public ElementType<TeskComboBox>
{
public:
    explicit TeskComboBoxType(const char* name);
};
