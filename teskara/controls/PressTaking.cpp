#include "teskara/controls/PressTaking.h"

#include "teskara/element/ElementWatch.h"
#include "teskara/element/TeskElement.h"

void TakePress(TeskElement& control, _Point2i& point)
{
    const ElementWatch watch(control);
    control.NotifyParent(NotifyLeftPressed, 0);
    if (watch.Exists())
        control.TeskElement::OnLMouseDown(point);
}

void TakeRelease(TeskElement& control, _Point2i& point)
{
    const ElementWatch watch(control);
    control.NotifyParent(NotifyLeftReleased, 0);
    if (watch.Exists())
        control.TeskElement::OnLMouseUp(point);
}
