#pragma once

#include <string>
#include <vector>

class Schema;

namespace host {

// A file below the folder of a reference.
struct SchemaPage {
    std::string Path; // with slashes
    std::string Text;
};

// A reference in Markdown: a page for each kind, each script type and each value with an inside, and README.md, which
// leads to them.
std::vector<SchemaPage> WriteSchemaPages(const Schema& schema);

} // namespace host
