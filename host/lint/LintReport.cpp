#include "host/lint/LintReport.h"

#include <nlohmann/json.hpp>

namespace host {

std::string FindingsAsText(const std::vector<Finding>& findings)
{
    std::string text;
    for (const Finding& finding : findings) {
        text += finding.File + ":" + std::to_string(finding.Place.Line) + ":" + std::to_string(finding.Place.Column)
            + ": " + finding.Message;
        if (!finding.Meant.empty())
            text += "; meant: " + finding.Meant;
        text.append(" (").append(finding.Rule).append(")\n");
    }
    return text;
}

std::string FindingsAsJson(const std::vector<Finding>& findings)
{
    using nlohmann::ordered_json;
    ordered_json rows = ordered_json::array();
    for (const Finding& finding : findings) {
        rows.push_back({{"file", finding.File}, {"line", finding.Place.Line}, {"column", finding.Place.Column},
            {"rule", finding.Rule}, {"message", finding.Message}, {"meant", finding.Meant}});
    }
    // What is no UTF-8 in a file is none in a message.
    return ordered_json{{"findings", rows}}.dump(2, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

} // namespace host
