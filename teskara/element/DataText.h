#pragma once

#include "teskara/core/Export.h"
#include "teskara/core/Limits.h"

#include <string_view>

// Texts that hold data sequences ("${...}") and are not parsed beforehand.
namespace DataText {

using Buffer = char[Limits::TextBuffer2048];

TESKARA_EXPORT bool HasSequences(std::string_view text);

// Evaluates a text; output is cut to its size and always terminated. The host gets a copy, since a sequence may set the
// text or end what it belongs to. May run scripts. False: memory ran out, and output is empty.
TESKARA_EXPORT bool Evaluate(std::string_view text, Buffer& output);

// Evaluates a text where it stands. A host that cannot leaves it as it is. May run scripts.
TESKARA_EXPORT void Expand(Buffer& text);

} // namespace DataText
