#pragma once

#include "teskara/controls/TeskScrollBar.h"
#include "teskara/markup/MarkupSource.h"

// An upright bar of one step, as high as its control.
_CreateScrollBar UprightScrollBar();

// Makes the vertical scroll bar of a control that scrolls, as its last child. The child element of that name either
// holds nothing but the name of a template, from which a bar of those values is made, or is the scroll bar itself. Null:
// there is none, or it could not be made. May run scripts, which may end the control.
TeskScrollBar* LoadScrollBar(
    TeskElement& owner, const MarkupSource& source, TagName tag, const _CreateScrollBar& values = UprightScrollBar());
