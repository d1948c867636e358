#include "tools/rules/LabelRules.h"

#include <algorithm>

#include "itemdlg/TemplateRewrite.h"
#include "tools/rules/PlaceholderRules.h"

namespace {

// The left column has about 204 pixels for 8 point text.
constexpr std::size_t kLongestLabel = 40;

constexpr SRule kLabelNoPlaceholder = {
    "label-no-placeholder", SV_ERROR, "a label without placeholder",
    "OK writes every label as if it had a placeholder: of one that has none the first character is lost and\n"
    "<<0>> stands in front of the rest, which the next opening shows so. Put the text into TavrinRes.dll and "
    "a\n"
    "placeholder here; tavrincheck extract does both.",
    "$4 = \"Frame depth\"R 0.08"};

constexpr SRule kLabelTwoPlaceholders = {
    "label-two-placeholders", SV_ERROR, "two placeholders in a label",
    "The number of the last one counts, in the place of the first one; the others are shown as they stand "
    "in\n"
    "the file. With OK the first number is lost. Use one text for the whole label.",
    "$3 = \"<<1503>> of <<1501>>\"I 2"};

constexpr SRule kPlaceholderInValue = {
    "placeholder-in-value", SV_ERROR, "a placeholder behind the label",
    "The dialog shows the label's own text, but OK writes the last placeholder of the line into the label.",
    "$1 = \"<<1501>>\"D 900 <<1502>>"};

constexpr SRule kLabelRewritten = {
    "label-rewritten", SV_WARNING, "a label that OK writes in another form",
    "OK puts the label together from what stands before the first <<, the placeholder's number without "
    "leading\n"
    "zeros, and what stands behind the first >>. Of this label that gives another one.",
    "$1 = \"<<01501>>\"D 900\n$2 = \">> <<1502>>\"D 2100"};

constexpr SRule kLabelEmpty = {"label-empty", SV_WARNING, "a label of which nothing is shown",
                               "The row stands there without a name.", "$1 = \"%\"D 900"};

constexpr SRule kLabelDuplicate = {"label-duplicate", SV_ERROR, "two parameters show the same label",
                                   "The grid takes every name once: the second row is left out, so that its "
                                   "value cannot be changed. Labels\n"
                                   "are compared as they are shown, with their texts and without the mark %.",
                                   "$1 = \"<<1501>>\"D 900\n$2 = \"<<1501>>%\"D 2100"};

constexpr SRule kLabelTooLong = {
    "label-too-long", SV_WARNING, "a label is longer than the dialog shows",
    "The left column has room for about 40 characters. What is longer is cut off at the right; the user can\n"
    "move the divider each time.",
    "$1 = \"Distance between the first hinge and the lower edge\"D 200"};

constexpr SRule kMarkMisplaced = {
    "mark-misplaced", SV_WARNING, "a % that is not the label's last character",
    "Only a % at the very end of a label makes the row read-only. One that text or blanks follow is shown.",
    "$2 = \"<<1502>>% (mm)\"D 2100"};

constexpr SRule kMarkFromText = {"mark-from-text", SV_WARNING,
                                 "a text that ends in % makes the row read-only",
                                 "The mark is looked for after the texts are put in: a text such as 'Share "
                                 "in %' at the end of a label loses\n"
                                 "its % and makes the row read-only in mode 1. Put something behind it.",
                                 "$10 = \"<<1510>>\"R 35"};

constexpr SRule kTextUnknown = {"text-unknown", SV_ERROR, "the text of a label does not exist",
                                "TavrinRes.dll has no text with the placeholder's number, so that the label "
                                "comes out without it. Two such\n"
                                "labels are the same, of which the grid shows one alone.",
                                "$1 = \"<<1599>>\"D 900"};

constexpr const SRule* kRules[] = {
    &kLabelNoPlaceholder, &kLabelTwoPlaceholders, &kPlaceholderInValue, &kLabelRewritten, &kLabelEmpty,
    &kLabelDuplicate,     &kLabelTooLong,         &kMarkMisplaced,      &kMarkFromText,   &kTextUnknown};

const std::wstring& LabelOf(const SItemLine& line) {
    return line.parameter->parts.label;
}

// The label that OK writes.
std::wstring RewrittenLabel(const tavrin::itemdlg::ParamRecord& record) {
    return record.labelPrefix + L"<<" + WideNumber(record.resourceId) + L">>" + record.labelSuffix;
}

// The line that OK writes into the template when the value stays as it is.
std::wstring RewrittenLine(const SItemLine& line) {
    const tavrin::itemdlg::ParamRecord& record = line.parameter->record;
    return tavrin::itemdlg::TemplateFileLine(record, tavrin::itemdlg::ValueText(record, 1.0));
}

}  // namespace

RuleList LabelRules() {
    return kRules;
}

CLabelRules::CLabelRules(CFindingList& findings, const CTextTable* texts)
    : CRuleGroup(findings),
      m_texts(texts),
      m_shown(texts != nullptr ? std::max<std::size_t>(texts->Languages().size(), 1) : 1) {}

void CLabelRules::TakeLine(const SItemLine& line) {
    if (line.parameter == nullptr) {
        return;
    }
    CheckForm(line);
    CheckMark(line);
    if (line.parameter->record.type != 'U') {  // such a parameter has no row
        CheckShown(line);
    }
}

void CLabelRules::ReportAtLabel(const SRule& rule, const SItemLine& line, std::string message) {
    Findings().Add(rule, line, line.parameter->labelStart, LabelOf(line).size(), std::move(message));
}

void CLabelRules::CheckForm(const SItemLine& line) {
    const std::wstring& label = LabelOf(line);
    const int number = line.parameter->placeholder;
    if (number != 0) {
        CheckPlaceholder(line, number);
        return;
    }
    const bool isWritten = line.parameter->record.type != 'U';
    const std::string written =
        isWritten ? "after the first OK the line is " + Quoted(RewrittenLine(line)) : std::string();
    if (!CheckPlaceholderForm(
            Findings(), line, line.parameter->labelStart, label,
            "the label shows it as it stands here" + (isWritten ? ", and " + written : ""))) {
        ReportAtLabel(
            kLabelNoPlaceholder, line,
            "the label " + Quoted(label) + " has no placeholder" + (isWritten ? ": " + written : ""));
    }
}

void CLabelRules::CheckPlaceholder(const SItemLine& line, int number) {
    const tavrin::itemdlg::ParamRecord& record = line.parameter->record;
    CheckPlaceholderNumber(Findings(), line, line.parameter->labelStart + record.labelPrefix.size(), number);
    if (record.labelSuffix.find(L"<<") != std::wstring::npos &&
        record.labelPrefix.find(L">>") == std::wstring::npos) {
        const std::wstring& label = LabelOf(line);
        const std::size_t start = record.labelPrefix.size();
        const std::wstring first = label.substr(start, label.size() - start - record.labelSuffix.size());
        ReportAtLabel(kLabelTwoPlaceholders, line,
                      "text " + std::to_string(number) + " is shown in the place of " + Quoted(first) +
                          ", which is lost: after the first OK the label is " +
                          Quoted(RewrittenLabel(record)));
    } else if (record.resourceId != number) {
        const SParameter& parameter = *line.parameter;
        const std::size_t start = parameter.valueStart + parameter.parts.value.rfind(L"<<");
        Findings().Add(kPlaceholderInValue, line, start, line.text.find(L">>", start) + 2 - start,
                       "the first OK puts this number into the label in place of " + std::to_string(number));
    } else {
        CheckRewritten(line);
    }
    if (m_texts != nullptr && number <= tavrin::itemdlg::kHighestTextNumber &&
        m_texts->Find(static_cast<unsigned>(number)) == nullptr) {
        ReportAtLabel(kTextUnknown, line, "there is no text " + std::to_string(number));
    }
}

void CLabelRules::CheckRewritten(const SItemLine& line) {
    const tavrin::itemdlg::ParamRecord& record = line.parameter->record;
    const std::wstring label = RewrittenLabel(record);
    if (label != LabelOf(line)) {
        ReportAtLabel(kLabelRewritten, line, "after the first OK the label is " + Quoted(label));
    }
}

// A "%" directly behind a placeholder was meant as a mark, and so was one in front of a placeholder at the
// label's beginning, and one that blanks alone follow.
void CLabelRules::CheckMark(const SItemLine& line) {
    const std::wstring& label = LabelOf(line);
    const std::size_t behind = label.find(L">>%");
    const std::size_t last = label.find_last_not_of(L" \t");
    std::size_t place = std::wstring::npos;
    if (last != std::wstring::npos && label[last] == L'%' && last + 1 < label.size()) {
        place = last;
    } else if (behind != std::wstring::npos && behind + 3 < label.size()) {
        place = behind + 2;
    } else if (label.starts_with(L"%<<")) {
        place = 0;
    }
    if (place != std::wstring::npos) {
        Findings().Add(kMarkMisplaced, line, line.parameter->labelStart + place, 1,
                       "this '%' is shown and makes nothing read-only: it is not the label's last character");
    }
}

// The row with the texts of a language, as mode 1 shows it. A text that is missing, which is reported
// elsewhere, stands as its placeholder.
tavrin::itemdlg::ParameterRow CLabelRules::ShownRow(const SItemLine& line, std::size_t language) const {
    const auto lookup = [&](unsigned number) {
        const SText* const text = m_texts->Find(number, language);
        return text != nullptr ? text->text.substr(0, CTextTable::kLongestText)
                               : L"<<" + WideNumber(static_cast<int>(number)) + L">>";
    };
    return *tavrin::itemdlg::ReadParameter(line.text, line.parameter->record.lineIndex, 1.0,
                                           tavrin::itemdlg::kReadOnlyMode, lookup);
}

void CLabelRules::CheckShown(const SItemLine& line) {
    const std::wstring& written = LabelOf(line);
    const bool hasPlaceholder = line.parameter->placeholder != 0;
    const bool hasTexts = m_texts != nullptr && hasPlaceholder;
    // Of a text that is not known only what stands around it.
    const tavrin::itemdlg::ParamRecord& record = line.parameter->record;
    const std::size_t literal =
        record.labelPrefix.size() + record.labelSuffix.size() - (record.labelSuffix.ends_with(L'%') ? 1 : 0);
    SShownLabel shown;
    for (CTextIndex& labels : m_shown) {
        tavrin::itemdlg::ParameterRow row;
        if (hasTexts) {
            row = ShownRow(line, static_cast<std::size_t>(&labels - m_shown.data()));
        }
        const std::wstring& label = hasTexts ? row.record.label : record.label;
        shown.isEmpty = shown.isEmpty || label.empty();
        shown.isMarkedByText = shown.isMarkedByText || (hasTexts && !row.editable && written.back() != L'%');
        shown.length = std::max(shown.length, hasTexts || !hasPlaceholder ? label.size() : literal);
        const std::size_t first = labels.FindOrAdd(label, line.index);
        if (first != line.index && shown.twin.empty()) {
            shown.twin = Quoted(label) + " is the label of line " + std::to_string(first + 1) + " too";
        }
    }
    ReportShown(line, shown);
}

void CLabelRules::ReportShown(const SItemLine& line, const SShownLabel& shown) {
    if (!shown.twin.empty()) {
        ReportAtLabel(kLabelDuplicate, line, shown.twin + ": this parameter gets no row");
    } else if (shown.isEmpty) {
        ReportAtLabel(kLabelEmpty, line, "the row has no name");
    }
    if (shown.isMarkedByText) {
        ReportAtLabel(kMarkFromText, line, "the label's text ends in '%', which makes the row read-only");
    }
    if (shown.length > kLongestLabel) {
        ReportAtLabel(kLabelTooLong, line,
                      "the label has " + std::to_string(shown.length) + " characters" +
                          (m_texts == nullptr && line.parameter->placeholder != 0 ? " beside its text" : "") +
                          ", its column has room for about " + std::to_string(kLongestLabel));
    }
}
