#pragma once

#include "teskara/markup/MarkupSource.h"

class TeskElement;
class TeskScrollBar;

// Makes the vertical scroll bar of a control that scrolls, as its last child. The child element of that name either
// holds nothing but the name of a template, or is the scroll bar itself. Null: there is none, or it could not be made.
// May run scripts, which may end the control.
TeskScrollBar* LoadScrollBar(TeskElement& owner, const MarkupSource& source, TagName tag);
