#include "tools/rules/LabelRules.h"

#include <algorithm>

#include "itemdlg/TemplateRewrite.h"
#include "tools/rules/PlaceholderRules.h"

namespace tavrin::tools {

namespace {

// The left column has about 204 pixels for 8 point text.
constexpr std::size_t kLongestLabel = 40;

constexpr Rule kLabelNoPlaceholder = {"label-no-placeholder", SV_ERROR, "a label without placeholder",
                                      "OK writes every label as if it had a placeholder: without one, the "
                                      "first character is replaced by <<0>>,\n"
                                      "which the next dialog shows. Put the text into TavrinRes.dll and a "
                                      "placeholder here; tavrincheck extract\n"
                                      "does both.",
                                      "$4 = \"Frame depth\"R 0.08"};

constexpr Rule kLabelTwoPlaceholders = {
    "label-two-placeholders", SV_ERROR, "two placeholders in a label",
    "The text of the last number is shown instead of the first placeholder; the others are shown as they "
    "are\n"
    "in the file. OK drops the first number. Use one text for the whole label.",
    "$3 = \"<<1503>> of <<1501>>\"I 2"};

constexpr Rule kPlaceholderInValue = {
    "placeholder-in-value", SV_ERROR, "a placeholder after the label",
    "The dialog shows the label's own text, but OK writes the last placeholder of the line into the label.",
    "$1 = \"<<1501>>\"D 900 <<1502>>"};

constexpr Rule kLabelRewritten = {"label-rewritten", SV_WARNING, "a label that OK writes in another form",
                                  "OK writes the label as the text before the first <<, the placeholder's "
                                  "number without leading zeros, and\n"
                                  "the text after the first >>. That changes this label.",
                                  "$1 = \"<<01501>>\"D 900\n$2 = \">> <<1502>>\"D 2100"};

constexpr Rule kLabelEmpty = {"label-empty", SV_WARNING, "an empty label", "The row has no name.",
                              "$1 = \"%\"D 900"};

constexpr Rule kLabelDuplicate = {
    "label-duplicate", SV_ERROR, "two parameters show the same label",
    "The grid shows only the first row: the value of the second cannot be changed. Labels are compared as\n"
    "they are shown, with their texts and without the mark %.",
    "$1 = \"<<1501>>\"D 900\n$2 = \"<<1501>>%\"D 2100"};

constexpr Rule kLabelTooLong = {"label-too-long", SV_WARNING, "a label is longer than the dialog shows",
                                "The left column shows about 40 characters and truncates longer labels, "
                                "unless the user moves the divider.",
                                "$1 = \"Distance between the first hinge and the lower edge\"D 200"};

constexpr Rule kMarkMisplaced = {
    "mark-misplaced", SV_WARNING, "a % that is not the label's last character",
    "Only a % at the end of a label makes the row read-only. A % before text or blanks is shown.",
    "$2 = \"<<1502>>% (mm)\"D 2100"};

constexpr Rule kMarkFromText = {
    "mark-from-text", SV_WARNING, "a text that ends in % makes the row read-only",
    "The mark is recognized after the texts are inserted: a text such as 'Share in %' at the end of a label\n"
    "loses its % and makes the row read-only in mode 1. Put something after it.",
    "$10 = \"<<1510>>\"R 35"};

constexpr Rule kTextUnknown = {
    "text-unknown", SV_ERROR, "the text of a label does not exist",
    "TavrinRes.dll has no text with the placeholder's number, so the label is shown without it. If two such\n"
    "labels are equal, the grid shows only one row.",
    "$1 = \"<<1599>>\"D 900"};

constexpr const Rule* kRules[] = {
    &kLabelNoPlaceholder, &kLabelTwoPlaceholders, &kPlaceholderInValue, &kLabelRewritten, &kLabelEmpty,
    &kLabelDuplicate,     &kLabelTooLong,         &kMarkMisplaced,      &kMarkFromText,   &kTextUnknown};

const std::wstring& LabelOf(const ItemLine& line) {
    return line.parameter->parts.label;
}

// The label that OK writes.
std::wstring RewrittenLabel(const itemdlg::ParamRecord& record) {
    return record.labelPrefix + L"<<" + WideNumber(record.resourceId) + L">>" + record.labelSuffix;
}

// The line that OK writes into the template when the value stays as it is.
std::wstring RewrittenLine(const ItemLine& line) {
    const itemdlg::ParamRecord& record = line.parameter->record;
    return itemdlg::TemplateFileLine(record, itemdlg::ValueText(record, 1.0));
}

}  // namespace

RuleList LabelRules() {
    return kRules;
}

CLabelRules::CLabelRules(CFindingList& findings, const CTextTable* texts)
    : CRuleGroup(findings),
      m_texts(texts),
      m_shown(texts != nullptr ? std::max<std::size_t>(texts->Languages().size(), 1) : 1) {}

void CLabelRules::TakeLine(const ItemLine& line) {
    if (line.parameter == nullptr) {
        return;
    }
    CheckForm(line);
    CheckMark(line);
    if (line.parameter->record.type != 'U') {  // such a parameter has no row
        CheckShown(line);
    }
}

void CLabelRules::ReportAtLabel(const Rule& rule, const ItemLine& line, std::string message) {
    Findings().Add(rule, line, line.parameter->labelStart, LabelOf(line).size(), std::move(message));
}

void CLabelRules::CheckForm(const ItemLine& line) {
    const std::wstring& label = LabelOf(line);
    const int number = line.parameter->placeholder;
    if (number != 0) {
        CheckPlaceholder(line, number);
        return;
    }
    const bool isWritten = line.parameter->record.type != 'U';
    const std::string written =
        isWritten ? "after the first OK the line is " + Quoted(RewrittenLine(line)) : std::string();
    if (!CheckPlaceholderForm(Findings(), line, line.parameter->labelStart, label,
                              "the label shows it as it is here" + (isWritten ? ", and " + written : ""))) {
        ReportAtLabel(
            kLabelNoPlaceholder, line,
            "the label " + Quoted(label) + " has no placeholder" + (isWritten ? ": " + written : ""));
    }
}

void CLabelRules::CheckPlaceholder(const ItemLine& line, int number) {
    const itemdlg::ParamRecord& record = line.parameter->record;
    CheckPlaceholderNumber(Findings(), line, line.parameter->labelStart + record.labelPrefix.size(), number);
    if (record.labelSuffix.find(L"<<") != std::wstring::npos &&
        record.labelPrefix.find(L">>") == std::wstring::npos) {
        const std::wstring& label = LabelOf(line);
        const std::size_t start = record.labelPrefix.size();
        const std::wstring first = label.substr(start, label.size() - start - record.labelSuffix.size());
        ReportAtLabel(kLabelTwoPlaceholders, line,
                      "text " + std::to_string(number) + " is shown instead of " + Quoted(first) +
                          ", which is lost: after the first OK the label is " +
                          Quoted(RewrittenLabel(record)));
    } else if (record.resourceId != number) {
        const Parameter& parameter = *line.parameter;
        const std::size_t start = parameter.valueStart + parameter.parts.value.rfind(L"<<");
        Findings().Add(kPlaceholderInValue, line, start, line.text.find(L">>", start) + 2 - start,
                       "the first OK writes this number into the label instead of " + std::to_string(number));
    } else {
        CheckRewritten(line);
    }
    if (m_texts != nullptr && number <= itemdlg::kHighestTextNumber &&
        m_texts->Find(static_cast<unsigned>(number)) == nullptr) {
        ReportAtLabel(kTextUnknown, line, "there is no text " + std::to_string(number));
    }
}

void CLabelRules::CheckRewritten(const ItemLine& line) {
    const itemdlg::ParamRecord& record = line.parameter->record;
    const std::wstring label = RewrittenLabel(record);
    if (label != LabelOf(line)) {
        ReportAtLabel(kLabelRewritten, line, "after the first OK the label is " + Quoted(label));
    }
}

// A "%" directly after a placeholder was probably meant as a mark, and so was one before a placeholder at the
// beginning of the label, and one that is followed only by blanks.
void CLabelRules::CheckMark(const ItemLine& line) {
    const std::wstring& label = LabelOf(line);
    const std::size_t after = label.find(L">>%");
    const std::size_t last = label.find_last_not_of(L" \t");
    std::size_t position = std::wstring::npos;
    if (last != std::wstring::npos && label[last] == L'%' && last + 1 < label.size()) {
        position = last;
    } else if (after != std::wstring::npos && after + 3 < label.size()) {
        position = after + 2;
    } else if (label.starts_with(L"%<<")) {
        position = 0;
    }
    if (position != std::wstring::npos) {
        Findings().Add(
            kMarkMisplaced, line, line.parameter->labelStart + position, 1,
            "this '%' is shown and does not make the row read-only: it is not the label's last character");
    }
}

// The row with the texts of a language, as mode 1 shows it. Missing texts, which are reported elsewhere, are
// shown as their placeholders.
itemdlg::ParameterRow CLabelRules::ShownRow(const ItemLine& line, std::size_t language) const {
    const auto lookup = [&](unsigned number) {
        const TextEntry* const text = m_texts->Find(number, language);
        return text != nullptr ? text->text.substr(0, CTextTable::kLongestText)
                               : L"<<" + WideNumber(static_cast<int>(number)) + L">>";
    };
    return *itemdlg::ReadParameter(line.text, line.parameter->record.lineIndex, 1.0, itemdlg::kReadOnlyMode,
                                   lookup);
}

void CLabelRules::CheckShown(const ItemLine& line) {
    const std::wstring& written = LabelOf(line);
    const bool hasPlaceholder = line.parameter->placeholder != 0;
    const bool hasTexts = m_texts != nullptr && hasPlaceholder;
    // Without the text: the length of the rest of the label.
    const itemdlg::ParamRecord& record = line.parameter->record;
    const std::size_t literal =
        record.labelPrefix.size() + record.labelSuffix.size() - (record.labelSuffix.ends_with(L'%') ? 1 : 0);
    ShownLabel shown;
    for (CTextIndex& labels : m_shown) {
        itemdlg::ParameterRow row;
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

void CLabelRules::ReportShown(const ItemLine& line, const ShownLabel& shown) {
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
                          ", its column shows about " + std::to_string(kLongestLabel));
    }
}

}  // namespace tavrin::tools
