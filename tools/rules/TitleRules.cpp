#include "tools/rules/TitleRules.h"

#include <algorithm>

#include "itemdlg/ItemFiles.h"
#include "tools/rules/Characters.h"
#include "tools/rules/PlaceholderRules.h"
#include "tools/texts/CodePage.h"

namespace tavrin::tools {

namespace {

// The header takes 288 pixels of 16 point text, which is hardly ever more.
constexpr std::size_t kLongestHeader = 29;

constexpr Rule kTitleMissing = {
    "title-missing", SV_WARNING, "the second line is not a title",
    "The second line of both files is the title of the dialog: a placeholder such as <<2001>>, or the title\n"
    "itself. If the line is missing, the title is the name of the file; if it is empty, so is the title. A "
    "block\n"
    "or a parameter in this line is shown as the title too.",
    "Hinged door\nVAR\n$1 = \"<<1501>>\"D 900\nEND_VAR"};

constexpr Rule kTitleTextLost = {
    "title-text-lost", SV_WARNING, "text beside the placeholder of a title is not shown",
    "Unlike a label, a title with a placeholder shows only the placeholder's text: the rest of the line is\n"
    "dropped. Put the whole title into the text.",
    "Hinged door\nItem: <<2001>>"};

constexpr Rule kTitleTextUnknown = {
    "title-text-unknown", SV_ERROR, "the title's text does not exist",
    "TavrinRes.dll has no text with the number of the title's placeholder, so the title is empty.",
    "Hinged door\n<<2999>>"};

constexpr Rule kTitleTooLong = {
    "title-too-long", SV_WARNING, "the title is longer than the dialog shows",
    "The header above the parameters shows about 29 characters, including text 1363, and truncates the rest.",
    "Hinged door\nDouble door with two glazed side panels and a fanlight"};

constexpr const Rule* kRules[] = {&kTitleMissing, &kTitleTextLost, &kTitleTextUnknown, &kTitleTooLong};

}  // namespace

RuleList TitleRules() {
    return kRules;
}

void CTitleRules::TakeLine(const ItemLine& line) {
    ++m_lineCount;
    if (line.index != itemdlg::kTitleLine) {
        return;
    }
    CheckForm(line);
    const int number = itemdlg::PlaceholderNumber(line.text);
    if (number != 0) {
        CheckPlaceholder(line, number);
    } else {
        CheckPlaceholderForm(Findings(), line, 0, line.text, "the title shows it as it is here");
    }
    CheckLength(line, number);
}

void CTitleRules::CheckForm(const ItemLine& line) {
    const std::wstring& text = line.text;
    if (std::all_of(text.begin(), text.end(), IsBlank)) {
        Findings().Add(kTitleMissing, line, 0, text.size(), "the second line, the dialog's title, is empty");
    } else if (line.kind != LK_OUTSIDE || itemdlg::ParseParameterLine(text)) {
        Findings().Add(kTitleMissing, line, 0, text.size(),
                       "the second line is the dialog's title, not a part of the parameter block");
    }
}

void CTitleRules::CheckPlaceholder(const ItemLine& line, int number) {
    const std::wstring_view before = itemdlg::LabelPrefix(line.text);
    const std::wstring_view after = itemdlg::LabelSuffix(line.text);
    if (!before.empty() || !after.empty()) {
        const std::size_t start = before.empty() ? line.text.size() - after.size() : 0;
        Findings().Add(kTitleTextLost, line, start, before.empty() ? after.size() : before.size(),
                       Quoted(before.empty() ? after : before) +
                           " is not shown: a title with a placeholder is the placeholder's text alone");
    }
    CheckPlaceholderNumber(Findings(), line, before.size(), number);
    if (m_texts != nullptr && number <= itemdlg::kHighestTextNumber &&
        m_texts->Find(static_cast<unsigned>(number)) == nullptr) {
        Findings().Add(kTitleTextUnknown, line, before.size(),
                       line.text.size() - before.size() - after.size(),
                       "the title is empty: there is no text " + std::to_string(number));
    }
}

// Reports the language with the longest header.
void CTitleRules::CheckLength(const ItemLine& line, int number) {
    std::size_t prefix = 0;
    std::size_t length = number == 0 ? line.text.size() : 0;
    std::string language;
    const std::size_t count = m_texts != nullptr ? m_texts->Languages().size() : 0;
    for (std::size_t i = 0; i < count; ++i) {
        const TextEntry* const header = m_texts->Find(itemdlg::kHeaderPrefixText, i);
        const TextEntry* const title =
            number != 0 ? m_texts->Find(static_cast<unsigned>(number), i) : nullptr;
        const std::size_t prefixHere = header != nullptr ? header->text.size() : 0;
        const std::size_t lengthHere = number == 0        ? line.text.size()
                                       : title != nullptr ? title->text.size()
                                                          : 0;
        if (prefixHere + lengthHere > prefix + length) {
            prefix = prefixHere;
            length = lengthHere;
            language = m_texts->Languages()[i];
        }
    }
    if (prefix + length > kLongestHeader) {
        Findings().Add(kTitleTooLong, line, 0, line.text.size(),
                       (language.empty() ? "the title has " : "in " + language + " the title has ") +
                           std::to_string(length) + " characters" +
                           (prefix != 0 ? " after the " + std::to_string(prefix) + " of text 1363" : "") +
                           ", the header shows about " + std::to_string(kLongestHeader));
    }
}

void CTitleRules::Finish() {
    if (m_lineCount <= itemdlg::kTitleLine) {
        Findings().Add(kTitleMissing, m_lineCount == 0
                                          ? "the file is empty: its second line is the dialog's title"
                                          : "the file ends before its second line, the dialog's title");
    }
}

}  // namespace tavrin::tools
