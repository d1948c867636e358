// Checking item files: every finding has a place in the file, and the findings stand in order. The first byte
// says what is checked, the others are the file.
#include <algorithm>
#include <string>
#include <tuple>

#include "Checker.h"
#include "Fuzz.h"
#include "TextTable.h"

namespace {

void RequireFindings(const std::vector<SFinding>& findings, std::string_view bytes, const std::string& file) {
    const auto lines = static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n')) +
                       static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\r')) + 1;
    for (const SFinding& finding : findings) {
        Require(finding.rule != nullptr && finding.file == file, "a finding names its rule and its file");
        Require(!finding.message.empty() && finding.message.find('\n') == std::string::npos,
                "a finding has a message of one line");
        Require(finding.line <= lines && (finding.line == 0) == (finding.column == 0),
                "a finding has a place in the file");
        Require(finding.column + finding.length <= bytes.size() + 2, "a finding ends in the file");
    }
    const auto before = [](const SFinding& one, const SFinding& other) {
        return std::tie(one.line, one.column) < std::tie(other.line, other.column);
    };
    Require(std::is_sorted(findings.begin(), findings.end(), before), "findings come in the order of places");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const std::string bytes(Bytes(data + 1, size - 1));
    static const CTextTable texts = [] {
        CTextTable table;
        table.ReadBytes("fuzz.rc", "STRINGTABLE\nBEGIN\n 1 \"Width\"\n 1501 \"Height%\"\n 2001 \"\"\nEND\n");
        return table;
    }();
    TextNumbers usedTexts;
    SCheckContext context;
    context.file = "fuzz.TXT";
    context.isWorkingFile = data[0] % 2 == 1;
    context.texts = data[0] / 2 % 2 == 1 ? &texts : nullptr;
    context.usedTexts = &usedTexts;
    RequireFindings(CheckText(bytes, context), bytes, context.file);
    const std::size_t half = bytes.find("\n\n");
    if (half != std::string::npos) {
        ComparePair({"a.TXT", std::string_view(bytes).substr(0, half)},
                    {"a_TMP.TXT", std::string_view(bytes).substr(half + 2)});
    }
    ComparePair({"a.TXT", bytes}, {"a_TMP.TXT", bytes});
    return 0;
}
