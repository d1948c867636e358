#include "tools/rules/LineRules.h"

#include "itemdlg/NumberText.h"
#include "tools/rules/Characters.h"
#include "tools/rules/LineRepair.h"

namespace {

constexpr SRule kLineLeadingBlank = {
    "line-leading-blank", SV_ERROR, "a blank or tab in front of a parameter's $",
    "A parameter line begins with its $. One that is indented is no parameter: it gets no row.",
    "  $1 = \"<<1501>>\"D 900"};

constexpr SRule kLineTab = {"line-tab", SV_ERROR, "a tab where only spaces may stand",
                            "Around the = of a parameter line spaces may stand, in any number, but no tab "
                            "and no non-breaking space.\n"
                            "With one the line is no parameter: it gets no row.",
                            "$1\xE2\x90\x89= \"<<1501>>\"D 900"};

constexpr SRule kLineNumber = {"line-number", SV_ERROR, "a parameter's number is not made of digits alone",
                               "Between the $ and the = stand digits, and spaces behind them. Otherwise the "
                               "line is no parameter: it gets\n"
                               "no row.",
                               "$1a = \"<<1501>>\"D 900\n$ 2 = \"<<1502>>\"D 2100"};

constexpr SRule kLineEquals = {
    "line-equals", SV_ERROR, "a parameter's = is missing or another sign",
    "Exactly one = stands between the number and the label. Otherwise the line is no parameter: it gets no\n"
    "row.",
    "$1 \"<<1501>>\"D 900\n$2 := \"<<1502>>\"D 2100"};

constexpr SRule kLineQuote = {
    "line-quote", SV_ERROR, "a quote of the label is missing or not the straight one",
    "The label stands in straight double quotes, and the closing one directly before the type letter. With\n"
    "apostrophes, with the curved quotes of word processors, or without one the line is no parameter: it "
    "gets\n"
    "no row.",
    "$1 = \"<<1501>>D 900\n$2 = '<<1502>>'D 2100"};

constexpr SRule kLineTypeLetter = {"line-type-letter", SV_ERROR,
                                   "the type letter is missing or none of I, D and R",
                                   "Directly behind the closing quote stands I for a whole number, D for a "
                                   "distance or R for a real number.\n"
                                   "Otherwise the line is no parameter: it gets no row.",
                                   "$1 = \"<<1501>>\"x 900\n$2 = \"<<1502>>\" D 2100\n$3 = \"<<1503>>\" 125"};

constexpr SRule kLineUnread = {
    "line-unread", SV_ERROR, "a line that begins like a parameter and is none",
    "A line inside a block that begins with $ was probably meant as a parameter, but more than one thing is\n"
    "wrong with it. It gets no row. The form is: $ number = \"label\" type letter value.",
    "$1 <<1501>>"};

constexpr SRule kLineAssignment = {"line-assignment", SV_ERROR, "an assignment in a template",
                                   "Such lines are what OK leaves in the working file. In the template they "
                                   "are no parameters, and the labels\n"
                                   "are gone: probably a used working file was copied over the template.",
                                   "#1 = 900\n$7 = 1"};

constexpr SRule kLineDollar = {"line-dollar", SV_WARNING, "a parameter's $ is missing or a #",
                               "A parameter line begins with $, whatever its type; # stands in a used "
                               "working file alone. But for that this\n"
                               "line would be a parameter: now it gets no row.",
                               "1 = \"<<1501>>\"D 900\n#2 = \"<<1502>>\"D 2100"};

constexpr const SRule* kRules[] = {&kLineLeadingBlank, &kLineDollar, &kLineTab,
                                   &kLineNumber,       &kLineEquals, &kLineQuote,
                                   &kLineTypeLetter,   &kLineUnread, &kLineAssignment};

constexpr SRepairRules kRepairRules = {&kLineLeadingBlank, &kLineTab,   &kLineNumber,
                                       &kLineEquals,       &kLineQuote, &kLineTypeLetter};

// Whether the reader would take the line if it began with "$" where it has `signs` characters now.
bool LacksDollar(const std::wstring& line, std::size_t signs) {
    return line.size() > signs && IsDigit(line[signs]) &&
           tavrin::itemdlg::ParseParameterLine(L'$' + line.substr(signs)).has_value();
}

// Only lines that begin so were meant as parameters; all others are remarks.
bool BeginsLikeParameter(const std::wstring& line) {
    const std::size_t start = line.find_first_not_of(L" \t\u00A0");
    return start != std::wstring::npos && line[start] == L'$';
}

}  // namespace

RuleList LineRules() {
    return kRules;
}

bool IsAssignment(const std::wstring& line) {
    constexpr std::wstring_view kSign = L" = ";
    if (line.empty() || (line.front() != L'#' && line.front() != L'$')) {
        return false;
    }
    const std::size_t end = line.find_first_not_of(L"0123456789", 1);
    if (end == std::wstring::npos || line.compare(end, kSign.size(), kSign) != 0) {
        return false;
    }
    const std::wstring_view value = std::wstring_view(line).substr(end + kSign.size());
    return value.empty() || tavrin::itemdlg::ReadLeadingNumber(value).end == value.size();
}

void CLineRules::TakeLine(const SItemLine& line) {
    if (line.kind != LK_IGNORED) {
        return;
    }
    if (IsAssignment(line.text)) {
        if (!m_isWorkingFile) {
            Findings().Add(kLineAssignment, line, 0, line.text.size(),
                           "this is an assignment of a working file, not a parameter");
        }
        return;
    }
    if (!BeginsLikeParameter(line.text)) {
        const std::size_t signs = line.text.starts_with(L'#') ? 1 : 0;
        if (LacksDollar(line.text, signs)) {
            Findings().Add(kLineDollar, line, 0, signs,
                           signs == 0 ? "here the '$' is missing" : "'#' stands here instead of '$'");
        }
        return;
    }
    const std::vector<SRepair> repairs = RepairLine(line.text, kRepairRules);
    for (const SRepair& repair : repairs) {
        Findings().Add(*repair.rule, line, repair.start, repair.length, repair.message);
    }
    if (repairs.empty()) {
        Findings().Add(
            kLineUnread, line, 0, line.text.size(),
            "this line is no parameter: write $N = \"label\" with I, D or R and the value behind it");
    }
}
