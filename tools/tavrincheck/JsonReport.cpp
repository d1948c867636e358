#include <nlohmann/json.hpp>

#include "tools/tavrincheck/Report.h"

namespace tavrin::tools {

std::string JsonReport(std::span<const Finding> findings) {
    using Json = nlohmann::ordered_json;
    Json list = Json::array();
    std::size_t counts[] = {0, 0, 0};
    for (const Finding& finding : findings) {
        list.push_back(Json{{"file", finding.file},
                            {"line", finding.line},
                            {"column", finding.column},
                            {"length", finding.length},
                            {"severity", SeverityName(finding.rule->severity)},
                            {"rule", finding.rule->id},
                            {"message", finding.message}});
        ++counts[finding.rule->severity];
    }
    const Json report = {{"findings", std::move(list)},
                         {"errors", counts[SV_ERROR]},
                         {"warnings", counts[SV_WARNING]},
                         {"notes", counts[SV_NOTE]}};
    // A file name may be invalid UTF-8.
    return report.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace tavrin::tools
