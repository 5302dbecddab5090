#pragma once

#include "teskara/core/Types.h"

#include <span>

class TeskElement;

// Something that a script may do to the element that runs it, or to another. argument chooses the details.
struct HostileAct {
    const char* Name;
    void (*Run)(TeskElement& self, u8 argument);
};

// The first does nothing. Inputs name acts by their places here, so new ones go to the end.
std::span<const HostileAct> AllHostileActs();

// Bytes name acts by their low bits; those for which there is no act do nothing.
constexpr u8 HostileActMask = 0x3f;
void Perform(u8 act, TeskElement& self, u8 argument);

// Whether acts replaced or removed templates or skins since this was asked last.
bool HaveTemplatesChanged();

// The element of that number in the order of the tree, counted round and round from the screen; null without a screen.
TeskElement* FindByPlace(u8 number);

// A position from a byte: on the screen, at its edges, or at the ends of the range.
_Point2i PointFrom(u8 byte);

// The same for anything that is a number.
i32 NumberFrom(u8 byte);
