#include "tools/rules/PairRules.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

#include "tools/rules/LineRules.h"

namespace tavrin::tools {

namespace {

constexpr Rule kPairNumberUnknown = {
    "pair-number-unknown", SV_ERROR, "the working file has a number that is not in the template",
    "The parameter gets a row and its value reaches the LISP routine, but OK finds no line in the template\n"
    "for the value: the next dialog does not start with it.",
    "door_TMP.TXT: $28 = \"<<1501>>\"D 900\ndoor.TXT:     (no $28)"};

constexpr Rule kPairNumberUnused = {
    "pair-number-unused", SV_WARNING, "the template has a number that is not in the working file",
    "The dialog shows the working file: the parameter gets no row, and its default in the template is never\n"
    "changed.",
    "door.TXT:     $28 = \"<<1501>>\"D 900\ndoor_TMP.TXT: (no $28)"};

constexpr Rule kPairLabelDiffers = {
    "pair-label-differs", SV_ERROR, "label or type of a parameter differ between template and working file",
    "OK overwrites label and type letter of the template with those of the working file.",
    "door.TXT:     $1 = \"<<1501>>\"D 900\ndoor_TMP.TXT: $1 = \"<<1502>>\"R 900"};

constexpr Rule kPairLayout = {
    "pair-layout", SV_WARNING, "template and working file have different lines",
    "The module does not depend on it, but LISP routines that read the working file line by line do. The\n"
    "working file should be a copy of the template.",
    "door.TXT:     line 4: $1 = \"<<1501>>\"D 900\ndoor_TMP.TXT: line 5: $1 = \"<<1501>>\"D 900"};

constexpr const Rule* kRules[] = {&kPairNumberUnknown, &kPairNumberUnused, &kPairLabelDiffers, &kPairLayout};

}  // namespace

RuleList PairRules() {
    return kRules;
}

void CPairSide::TakeLine(const ItemLine& line) {
    if (line.kind == LK_IGNORED && IsAssignment(line.text)) {
        m_isAssigned = true;
    }
    if (line.kind != LK_OPENING && line.kind != LK_CLOSING && line.kind != LK_PARAMETER) {
        return;
    }
    ComparedLine& kept = m_lines.emplace_back();
    kept.line = line;
    kept.line.parameter = nullptr;
    if (line.parameter != nullptr) {
        kept.number = line.parameter->parts.number;
        kept.label = line.parameter->parts.label;
        kept.typeLetter = line.parameter->parts.typeLetter;
        kept.isWritten = line.parameter->record.type != 'U';
        m_indices[kept.number] = m_lines.size() - 1;
    }
}

const CPairSide::ComparedLine* CPairSide::Find(const std::wstring& number) const {
    const auto found = m_indices.find(number);
    return found != m_indices.end() ? &m_lines[found->second] : nullptr;
}

void CPairSide::CompareWith(CPairSide& templateFile) {
    const bool hasUnknown =
        ReportMissing(templateFile, kPairNumberUnknown,
                      "the template does not have this number: OK cannot store the value there");
    const bool hasUnused = templateFile.ReportMissing(
        *this, kPairNumberUnused, "the working file does not have this number: the parameter gets no row");
    CompareParameters(templateFile);
    if (!hasUnknown && !hasUnused) {
        CompareLayout(templateFile);
    }
}

// Reports lines whose number the other side does not have. True when there are any.
bool CPairSide::ReportMissing(const CPairSide& other, const Rule& rule, const std::string& message) {
    bool isFound = false;
    for (const ComparedLine& line : m_lines) {
        if (line.line.kind == LK_PARAMETER && other.Find(line.number) == nullptr) {
            isFound = true;
            Findings().Add(rule, line.line, 0, 1 + line.number.size(), message);
        }
    }
    return isFound;
}

// Of several lines with a number OK writes the last one that has a row.
void CPairSide::CompareParameters(const CPairSide& templateFile) {
    std::unordered_set<std::wstring_view> seen;
    for (std::size_t i = m_lines.size(); i-- > 0;) {
        const ComparedLine& line = m_lines[i];
        const bool counts = line.isWritten && seen.insert(line.number).second;
        const ComparedLine* const other = counts ? templateFile.Find(line.number) : nullptr;
        if (other == nullptr || (line.label == other->label && line.typeLetter == other->typeLetter)) {
            continue;
        }
        const std::string where = " in line " + std::to_string(other->line.index + 1) + " of the template";
        Findings().Add(kPairLabelDiffers, line.line, 0, line.line.text.size(),
                       line.label != other->label
                           ? "OK replaces the label " + Quoted(other->label) + where + " by this line's"
                           : "OK replaces the type letter " + Quoted(std::wstring(1, other->typeLetter)) +
                                 where + " by this line's");
    }
}

// Reports only the first difference, since it moves all following lines.
void CPairSide::CompareLayout(const CPairSide& templateFile) {
    const auto isSame = [](const ComparedLine& a, const ComparedLine& b) {
        return a.line.index == b.line.index && a.line.kind == b.line.kind && a.number == b.number;
    };
    const auto [mine, other] = std::mismatch(m_lines.begin(), m_lines.end(), templateFile.m_lines.begin(),
                                             templateFile.m_lines.end(), isSame);
    if (mine == m_lines.end() && other == templateFile.m_lines.end()) {
        return;
    }
    if (mine == m_lines.end()) {
        Findings().Add(kPairLayout, "line " + std::to_string(other->line.index + 1) + " of the template, " +
                                        Quoted(other->line.text) + ", has no counterpart");
        return;
    }
    Findings().Add(kPairLayout, mine->line, 0, mine->line.text.size(),
                   other == templateFile.m_lines.end()
                       ? "the template has no line like this one"
                       : "in the template " + Quoted(other->line.text) + " comes here, in line " +
                             std::to_string(other->line.index + 1));
}

}  // namespace tavrin::tools
