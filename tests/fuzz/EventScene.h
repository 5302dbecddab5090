#pragma once

#include "teskara/core/Types.h"

#include <string>

// The events in the order of their numbers; the script of each is its number.
constexpr const char* EventNames[] = {"OnLoad", "OnUnload", "OnLeftClick", "OnRightClick", "OnDoubleLeftClick",
    "OnDoubleRightClick", "OnMouseEnter", "OnMouseExit", "OnMouseMove", "OnMouseWheel", "OnKeyboardEnter",
    "OnKeyboardExit", "OnKeyUp", "OnKeyDown", "OnLeftDown", "OnRightDown", "OnRender"};

// A file with elements of every kind that has a factory, side by side and one in another. The seed varies it.
std::string EventSceneMarkup(u8 seed);

// A small file, for scripts to load.
std::string EventPartMarkup();
