#include "teskara/element/NotificationNames.h"

// Without a default, so that the compiler tells of a code that is missing.
const char* NameOfNotification(NotificationCode code)
{
    switch (code) {
    case NotifyLeftReleased:
        return "NotifyLeftReleased";
    case NotifyTextChanged:
        return "NotifyTextChanged";
    case NotifyValueChanged:
        return "NotifyValueChanged";
    case NotifyEnter:
        return "NotifyEnter";
    case NotifyLeftPressed:
        return "NotifyLeftPressed";
    case NotifyRightPressed:
        return "NotifyRightPressed";
    case NotifyRightReleased:
        return "NotifyRightReleased";
    case NotifySelectionChanged:
        return "NotifySelectionChanged";
    case NotifyLeftDoubleClick:
        return "NotifyLeftDoubleClick";
    case NotifyRightDoubleClick:
        return "NotifyRightDoubleClick";
    case NotifyRowDoubleClick:
        return "NotifyRowDoubleClick";
    case NotifyRowDropped:
        return "NotifyRowDropped";
    case NotifyMouseMoved:
        return "NotifyMouseMoved";
    case NotifyMouseWheel:
        return "NotifyMouseWheel";
    case NotifyFontChanged:
        return "NotifyFontChanged";
    case NotifyChildGoing:
        return "NotifyChildGoing";
    }
    return nullptr;
}
