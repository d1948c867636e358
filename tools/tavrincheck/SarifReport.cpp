#include <algorithm>
#include <nlohmann/json.hpp>

#include "tools/tavrincheck/Report.h"

namespace tavrin::tools {

namespace {

using Json = nlohmann::ordered_json;

// A file name as a URI reference, with slashes and percent-encoding. Absolute names become file: URIs.
std::string Reference(const std::string& file) {
    constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string reference;
    const bool hasDrive = file.size() > 1 && file[1] == ':';
    if (hasDrive) {
        reference = "file:///" + file.substr(0, 2);
    } else if (file.starts_with("/")) {
        reference = "file://";
    }
    for (const char character : file.substr(hasDrive ? 2 : 0)) {
        const auto byte = static_cast<unsigned char>(character);
        if (kPlain.find(character) != std::string_view::npos) {
            reference += character;
        } else if (character == '\\') {
            reference += '/';
        } else {
            reference += '%';
            reference += kDigits[byte >> 4U];
            reference += kDigits[byte & 0xFU];
        }
    }
    return reference;
}

Json RuleObject(const Rule& rule) {
    return {{"id", rule.id},
            {"shortDescription", {{"text", rule.title}}},
            {"fullDescription", {{"text", rule.explanation}}},
            {"help",
             {{"text", std::string(rule.explanation) + "\n\nFor example:\n" + std::string(rule.example)}}},
            {"defaultConfiguration", {{"level", SeverityName(rule.severity)}}}};
}

Json ResultObject(const Finding& finding, std::span<const Rule* const> rules) {
    Json location = {{"artifactLocation", {{"uri", Reference(finding.file)}}}};
    if (finding.line != 0) {
        location["region"] = {{"startLine", finding.line},
                              {"startColumn", finding.column},
                              {"endColumn", finding.column + finding.length}};
    }
    return {{"ruleId", finding.rule->id},
            {"ruleIndex", std::find(rules.begin(), rules.end(), finding.rule) - rules.begin()},
            {"level", SeverityName(finding.rule->severity)},
            {"message", {{"text", finding.message}}},
            {"locations", Json::array({{{"physicalLocation", std::move(location)}}})}};
}

}  // namespace

std::string SarifReport(std::span<const Finding> findings, std::span<const Rule* const> rules,
                        std::string_view version) {
    Json ruleList = Json::array();
    for (const Rule* rule : rules) {
        ruleList.push_back(RuleObject(*rule));
    }
    Json results = Json::array();
    for (const Finding& finding : findings) {
        results.push_back(ResultObject(finding, rules));
    }
    const Json driver = {{"name", "tavrincheck"}, {"version", version}, {"rules", std::move(ruleList)}};
    // The files are single-byte text, so columns in bytes are columns in UTF-16 units.
    const Json run = {{"tool", {{"driver", driver}}},
                      {"columnKind", "utf16CodeUnits"},
                      {"defaultEncoding", "windows-1252"},
                      {"results", std::move(results)}};
    const Json log = {
        {"$schema",
         "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/sarif-schema-2.1.0.json"},
        {"version", "2.1.0"},
        {"runs", Json::array({run})}};
    return log.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace tavrin::tools
