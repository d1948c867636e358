// Checking an item's files. The first byte says what the file is checked as; of the others a part up to a
// byte 0xFF and a line feed is the template, what follows the working file.
#include <algorithm>
#include <cstdint>
#include <string>
#include <tuple>

#include "tests/fuzz/Fuzz.h"
#include "tools/rules/Checker.h"
#include "tools/rules/RuleTable.h"
#include "tools/tavrincheck/Report.h"

using namespace tavrin::tools;

namespace {

// The length of each line without its end.
std::vector<std::size_t> LineLengths(std::string_view bytes) {
    std::vector<std::size_t> lengths;
    while (!bytes.empty()) {
        lengths.push_back(CutLine(bytes).size());
    }
    return lengths;
}

void RequirePositions(const std::vector<Finding>& findings, std::string_view bytes) {
    const std::vector<std::size_t> lengths = LineLengths(bytes);
    for (const Finding& finding : findings) {
        Require(finding.rule != nullptr && FindRule(finding.rule->id) == finding.rule,
                "each finding is of a rule that is listed");
        Require(!finding.message.empty() && finding.message.find('\n') == std::string::npos,
                "a finding has a message of one line");
        Require((finding.line == 0) == (finding.column == 0), "a position is a line and a column");
        if (finding.line == 0) {
            continue;
        }
        Require(finding.line <= lengths.size(), "a finding's line is in the file");
        // Where something is missing at the end of a line, the position is the one after it.
        Require(finding.column - 1 + finding.length <= lengths[finding.line - 1] + 1,
                "a finding's position is in its line");
        Require(finding.excerpt.start + finding.excerpt.length <= finding.excerpt.text.size() + 1,
                "what is underlined is shown");
    }
    const auto before = [](const Finding& one, const Finding& other) {
        return std::tie(one.line, one.column) < std::tie(other.line, other.column);
    };
    Require(std::is_sorted(findings.begin(), findings.end(), before), "findings are sorted by position");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const std::string_view bytes = Bytes(data + 1, size - 1);
    const std::size_t border = bytes.find("\xFF\n");
    const std::string_view first = bytes.substr(0, border);
    const std::string_view second =
        border == std::string_view::npos ? std::string_view() : bytes.substr(border + 2);
    static const CTextTable texts = [] {
        CTextTable table;
        table.ReadBytes("a.rc",
                        "LANGUAGE 16, 1 STRINGTABLE { 1 \"Width\" 2 \"a%\" 1363 \"P\" 1501 \"<<2>>\" }"
                        " LANGUAGE 9, 1 STRINGTABLE { 1 \"\" 2 \"Width\" }");
        return table;
    }();
    TextNumbers used;
    CheckContext context;
    context.file = "a.TXT";
    context.isWorkingFile = data[0] % 2 != 0;
    context.texts = data[0] / 2 % 2 != 0 ? &texts : nullptr;
    context.usedTexts = data[0] / 4 % 2 != 0 ? &used : nullptr;
    const std::vector<Finding> findings = CheckText(first, context);
    RequirePositions(findings, first);
    Require(TextReport(findings).empty() == findings.empty() && !JsonReport(findings).empty(),
            "findings can be printed");
    Require(CheckText(first, context).size() == findings.size(), "a second time finds the same");
    ComparePair({"a.TXT", first}, {"a_TMP.TXT", second});
    for (const Finding& finding : ComparePair({"a.TXT", first}, {"a_TMP.TXT", first})) {
        // OK writes the last of the lines with one number that has a type, into the last of them all.
        Require(finding.rule->id == "pair-label-differs", "a copy has the same lines");
    }
    return 0;
}
