#pragma once

#include "teskara/script/Schema.h"

#include <string_view>

namespace host {

// A line for people on a shape or one of its values; empty where there is none. A value that several kinds have may have
// one line for all of them.
std::string_view NoteOn(const SchemaShape& shape);
std::string_view NoteOn(const SchemaShape& shape, const SchemaValue& value);

// Names what a line is written for and no schema tells of, as "shape" or "shape value"; empty if all is well.
std::string FirstStrayNote(const Schema& schema);

} // namespace host
