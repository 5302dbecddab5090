#pragma once

#include "teskara/core/CUIManager.h"
#include "teskara/element/TeskScreen.h"

// The element of that id, and the screen for 0; null if there is none.
inline TeskElement* ElementOrScreen(u32 id)
{
    return id == 0 ? g_UIManager.Screen : g_UIManager.FindElementByID(id);
}
