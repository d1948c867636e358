#include <nlohmann/json.hpp>

#include "tools/tavrincheck/Report.h"

std::string JsonReport(std::span<const SFinding> findings) {
    using Json = nlohmann::ordered_json;
    Json list = Json::array();
    std::size_t counts[] = {0, 0, 0};
    for (const SFinding& finding : findings) {
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
    // A file's name may be no UTF-8.
    return report.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}
