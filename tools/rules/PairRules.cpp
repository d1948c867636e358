#include "tools/rules/PairRules.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

#include "tools/rules/LineRules.h"

namespace {

constexpr SRule kPairNumberUnknown = {"pair-number-unknown", SV_ERROR,
                                      "the working file has a number that the template lacks",
                                      "The parameter gets a row and its value reaches the LISP routine, but "
                                      "OK finds no line in the template to\n"
                                      "store the value in: the next opening does not start from it.",
                                      "door_TMP.TXT: $28 = \"<<1501>>\"D 900\ndoor.TXT:     (no $28)"};

constexpr SRule kPairNumberUnused = {
    "pair-number-unused", SV_WARNING, "the template has a number that the working file lacks",
    "The dialog shows the working file: the parameter gets no row, and its default in the template is never\n"
    "changed.",
    "door.TXT:     $28 = \"<<1501>>\"D 900\ndoor_TMP.TXT: (no $28)"};

constexpr SRule kPairLabelDiffers = {
    "pair-label-differs", SV_ERROR, "label or type of a parameter differ in template and working file",
    "OK writes the working file's label and type letter into the template, over what stands there.",
    "door.TXT:     $1 = \"<<1501>>\"D 900\ndoor_TMP.TXT: $1 = \"<<1502>>\"R 900"};

constexpr SRule kPairLayout = {
    "pair-layout", SV_WARNING, "template and working file have their lines in different places",
    "The module itself does not mind. A LISP routine that reads the working file by its lines does, and it\n"
    "should be a copy of the template.",
    "door.TXT:     line 4: $1 = \"<<1501>>\"D 900\ndoor_TMP.TXT: line 5: $1 = \"<<1501>>\"D 900"};

constexpr const SRule* kRules[] = {&kPairNumberUnknown, &kPairNumberUnused, &kPairLabelDiffers, &kPairLayout};

}  // namespace

RuleList PairRules() {
    return kRules;
}

void CPairSide::TakeLine(const SItemLine& line) {
    if (line.kind == LK_IGNORED && IsAssignment(line.text)) {
        m_isAssigned = true;
    }
    if (line.kind != LK_OPENING && line.kind != LK_CLOSING && line.kind != LK_PARAMETER) {
        return;
    }
    SLine& kept = m_lines.emplace_back();
    kept.line = line;
    kept.line.parameter = nullptr;
    if (line.parameter != nullptr) {
        kept.number = line.parameter->parts.number;
        kept.label = line.parameter->parts.label;
        kept.typeLetter = line.parameter->parts.typeLetter;
        kept.isWritten = line.parameter->record.type != 'U';
        m_places[kept.number] = m_lines.size() - 1;
    }
}

const CPairSide::SLine* CPairSide::Find(const std::wstring& number) const {
    const auto found = m_places.find(number);
    return found != m_places.end() ? &m_lines[found->second] : nullptr;
}

void CPairSide::CompareWith(CPairSide& templateFile) {
    const bool lacks = ReportMissing(templateFile, kPairNumberUnknown,
                                     "the template has no such number: OK cannot store the value there");
    const bool isLacked = templateFile.ReportMissing(
        *this, kPairNumberUnused, "the working file has no such number: the parameter gets no row");
    CompareParameters(templateFile);
    if (!lacks && !isLacked) {
        CompareLayout(templateFile);
    }
}

// Reports lines whose number the other side lacks. True when there are any.
bool CPairSide::ReportMissing(const CPairSide& other, const SRule& rule, const std::string& message) {
    bool isFound = false;
    for (const SLine& line : m_lines) {
        if (line.line.kind == LK_PARAMETER && other.Find(line.number) == nullptr) {
            isFound = true;
            Findings().Add(rule, line.line, 0, 1 + line.number.size(), message);
        }
    }
    return isFound;
}

// Of the lines with one number OK writes the last one that has a row.
void CPairSide::CompareParameters(const CPairSide& templateFile) {
    std::unordered_set<std::wstring_view> seen;
    for (std::size_t i = m_lines.size(); i-- > 0;) {
        const SLine& line = m_lines[i];
        const bool counts = line.isWritten && seen.insert(line.number).second;
        const SLine* const other = counts ? templateFile.Find(line.number) : nullptr;
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

// One line that is elsewhere moves all behind it: the first alone is reported.
void CPairSide::CompareLayout(const CPairSide& templateFile) {
    const auto isSame = [](const SLine& a, const SLine& b) {
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
