#pragma once

#include <string>

class Schema;

namespace host {

// An XML schema of interface files, by which editors complete and check what is typed. It holds names as they are
// written by everyone; that the toolkit takes them in any case is not to be said there. Values of a template may be those
// of any kind.
std::string WriteSchemaXsd(const Schema& schema);

} // namespace host
