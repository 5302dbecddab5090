#pragma once

#include "teskara/core/Types.h"

class TeskElement;

namespace host {

// The event of an element whose script is the atom; null if it is none of those that every element has.
const char* NameOfEvent(const TeskElement& element, u32 atom);

} // namespace host
