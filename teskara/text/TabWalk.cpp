#include "teskara/text/TabWalk.h"

#include "teskara/core/CUIManager.h"
#include "teskara/element/ElementWatch.h"
#include "teskara/script/TypeGlobals.h"

namespace {

bool IsTextField(const MvTypeDefinition* type)
{
    return type && (type == pTeskTextEntryType || type == pTeskTextEditType);
}

} // namespace

// Windows do not end the walk: the tab order of interfaces goes through all of them.
void WalkToTextField(TeskElement& from)
{
    const auto step = g_UIManager.ShiftDown ? &TeskElement::WalkReverse : &TeskElement::Walk;
    TeskElement* element = (from.*step)(true, nullptr);
    while (element && element != &from) {
        const ElementWatch watch(*element);
        const bool found = IsTextField(element->GetMvType());
        if (!watch.Exists())
            return;
        if (found) {
            g_UIManager.SetFocusElement(element);
            return;
        }
        element = (element->*step)(true, nullptr);
    }
}
