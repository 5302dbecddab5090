#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Types.h"

#include <vector>

class TeskElement;

// Events are scripts that markup gives to elements, under a tag for what happens. They are listed nowhere else than in
// the tables by which controls read their markup: a row with the form Markup::Script adds one.

// The event of an element whose script is the atom. Null: the atom is none of its events.
TESKARA_EXPORT const char* NameOfEvent(const TeskElement& element, u32 atom);

// Every event of every kind: first those that all elements have, in the order of reading, then others by name. Empty if
// memory ran out.
TESKARA_EXPORT std::vector<const char*> EventNames();
