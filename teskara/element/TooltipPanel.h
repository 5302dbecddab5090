#pragma once

#include "teskara/core/Export.h"

// What the element named "Auto Tooltip" must also be to show the texts of others: a class that can do so derives from
// this beside TeskElement. An element of that name that does not is passed over.
class TESKARA_EXPORT TooltipPanel
{
public:
    virtual ~TooltipPanel() = default;

    // Replaces everything that it shows by this text.
    virtual void ShowOnly(const char* text) = 0;
};
