#pragma once

#include <string>

class Schema;

namespace host {

// The whole of a schema as one JSON object, with a line break at its end.
std::string WriteSchemaJson(const Schema& schema);

} // namespace host
