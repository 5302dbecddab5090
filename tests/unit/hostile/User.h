#pragma once

#include "teskara/core/Types.h"

#include <initializer_list>

class TeskElement;

// What somebody does with mouse and keyboard. An element that is not there is left alone.
namespace User {

// So far from a place, which may lie anywhere.
void MoveTo(i32 x, i32 y, i32 right = 0, i32 down = 0);
void PointAt(const char* name);
void PressLeft();
void ClickOn(const char* name);

// All that can be done with a mouse, at one place or at two of an element.
void UseMouseAt(i32 x, i32 y);
void UseMouseOn(const TeskElement* element);

void FocusOn(TeskElement* element);
void Type(u32 key);
void TypeWithControl(std::initializer_list<u32> keys);

// Letters, and each key that a field of text knows, alone and with others.
void TypeEverything();

} // namespace User
