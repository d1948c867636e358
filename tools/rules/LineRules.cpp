#include "tools/rules/LineRules.h"

#include "itemdlg/NumberText.h"
#include "tools/rules/Characters.h"
#include "tools/rules/LineRepair.h"

namespace tavrin::tools {

namespace {

constexpr Rule kLineLeadingBlank = {
    "line-leading-blank", SV_ERROR, "a blank or tab before a parameter's $",
    "A parameter line begins with its $. An indented line is not a parameter: it gets no row.",
    "  $1 = \"<<1501>>\"D 900"};

constexpr Rule kLineTab = {
    "line-tab", SV_ERROR, "a tab where only spaces are allowed",
    "Any number of spaces is allowed around the = of a parameter line, but no tabs and no non-breaking\n"
    "spaces. With one the line is not a parameter: it gets no row.",
    "$1\xE2\x90\x89= \"<<1501>>\"D 900"};

constexpr Rule kLineNumber = {
    "line-number", SV_ERROR, "a parameter's number contains characters other than digits",
    "Only digits are allowed between the $ and the =, and spaces after them. Otherwise the line is not a\n"
    "parameter: it gets no row.",
    "$1a = \"<<1501>>\"D 900\n$ 2 = \"<<1502>>\"D 2100"};

constexpr Rule kLineEquals = {"line-equals", SV_ERROR, "a parameter's = is missing or wrong",
                              "There must be exactly one = between the number and the label. Otherwise the "
                              "line is not a parameter: it\n"
                              "gets no row.",
                              "$1 \"<<1501>>\"D 900\n$2 := \"<<1502>>\"D 2100"};

constexpr Rule kLineQuote = {"line-quote", SV_ERROR,
                             "a quote of the label is missing or not a straight quote",
                             "The label must be in straight double quotes, and the type letter must follow "
                             "the closing quote directly.\n"
                             "With apostrophes or typographic quotes, or without a quote, the line is not a "
                             "parameter: it gets no row.",
                             "$1 = \"<<1501>>D 900\n$2 = '<<1502>>'D 2100"};

constexpr Rule kLineTypeLetter = {
    "line-type-letter", SV_ERROR, "the type letter is missing or not one of I, D and R",
    "I for a whole number, D for a distance or R for a real number must follow the closing quote directly.\n"
    "Otherwise the line is not a parameter: it gets no row.",
    "$1 = \"<<1501>>\"x 900\n$2 = \"<<1502>>\" D 2100\n$3 = \"<<1503>>\" 125"};

constexpr Rule kLineUnread = {
    "line-unread", SV_ERROR, "a line that begins like a parameter but is not one",
    "A line inside a block that begins with $ was probably meant as a parameter, but it has more than one\n"
    "error. It gets no row. The form is: $ number = \"label\" type letter value.",
    "$1 <<1501>>"};

constexpr Rule kLineAssignment = {"line-assignment", SV_ERROR, "an assignment in a template",
                                  "OK writes such lines into the working file. In the template they are not "
                                  "parameters, and the labels are\n"
                                  "lost: probably a used working file was copied over the template.",
                                  "#1 = 900\n$7 = 1"};

constexpr Rule kWorkingFileUsed = {"working-file-used", SV_NOTE, "a working file that an OK has used",
                                   "OK replaces the parameters of the working file by assignments. A dialog "
                                   "that is opened on this file again\n"
                                   "has no rows. An item's routine writes the file anew before each dialog; "
                                   "without a routine, copy NAME.TXT\n"
                                   "over it.",
                                   "door_TMP.TXT: #1 = 900"};

constexpr Rule kLineDollar = {"line-dollar", SV_WARNING, "a parameter's $ is missing or replaced by a #",
                              "A parameter line begins with $, whatever its type; # occurs only in used "
                              "working files. Apart from that\n"
                              "this line is a parameter, but it gets no row.",
                              "1 = \"<<1501>>\"D 900\n#2 = \"<<1502>>\"D 2100"};

constexpr const Rule* kRules[] = {&kLineLeadingBlank, &kLineDollar,     &kLineTab,        &kLineNumber,
                                  &kLineEquals,       &kLineQuote,      &kLineTypeLetter, &kLineUnread,
                                  &kLineAssignment,   &kWorkingFileUsed};

constexpr RepairRules kRepairRules = {&kLineLeadingBlank, &kLineTab,   &kLineNumber,
                                      &kLineEquals,       &kLineQuote, &kLineTypeLetter};

// Whether the reader would accept the line with "$" instead of its first `signs` characters.
bool LacksDollar(const std::wstring& line, std::size_t signs) {
    return line.size() > signs && IsDigit(line[signs]) &&
           itemdlg::ParseParameterLine(L'$' + line.substr(signs)).has_value();
}

// Other lines are taken for remarks.
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
    return value.empty() || itemdlg::ReadLeadingNumber(value).end == value.size();
}

void CLineRules::TakeLine(const ItemLine& line) {
    if (line.kind != LK_IGNORED) {
        return;
    }
    if (IsAssignment(line.text)) {
        if (!m_isWorkingFile) {
            Findings().Add(kLineAssignment, line, 0, line.text.size(),
                           "this is an assignment of a working file, not a parameter");
        } else if (!m_isUsed) {
            Findings().Add(kWorkingFileUsed, line, 0, line.text.size(),
                           "an OK has replaced this parameter by its value: the next dialog on this file has "
                           "no row for it, unless the item's routine writes the file anew");
        }
        m_isUsed = true;
        return;
    }
    if (!BeginsLikeParameter(line.text)) {
        const std::size_t signs = line.text.starts_with(L'#') ? 1 : 0;
        if (LacksDollar(line.text, signs)) {
            Findings().Add(kLineDollar, line, 0, signs,
                           signs == 0 ? "the '$' is missing here" : "'#' instead of '$'");
        }
        return;
    }
    const std::vector<Repair> repairs = RepairLine(line.text, kRepairRules);
    for (const Repair& repair : repairs) {
        Findings().Add(*repair.rule, line, repair.start, repair.length, repair.message);
    }
    if (repairs.empty()) {
        Findings().Add(
            kLineUnread, line, 0, line.text.size(),
            "this line is not a parameter: write $N = \"label\" followed by I, D or R and the value");
    }
}

}  // namespace tavrin::tools
