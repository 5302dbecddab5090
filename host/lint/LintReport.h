#pragma once

#include "host/lint/Finding.h"

#include <string>
#include <vector>

namespace host {

// "file:line:column: what is wrong; meant: what was meant (rule)", a line for each.
std::string FindingsAsText(const std::vector<Finding>& findings);

// {"findings": [{"file", "line", "column", "rule", "message", "meant"}, ...]}; line and column are 0 for a whole file.
std::string FindingsAsJson(const std::vector<Finding>& findings);

} // namespace host
