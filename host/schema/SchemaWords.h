#pragma once

#include "teskara/script/Schema.h"

namespace host {

// The words for what a schema tells of, as they stand in what is written of it.
const char* WordOf(SchemaPlace place);
const char* WordOf(SchemaUse use);

} // namespace host
