#include "tools/rules/TitleRules.h"

#include <algorithm>

#include "itemdlg/ItemFiles.h"
#include "tools/rules/Characters.h"
#include "tools/rules/PlaceholderRules.h"
#include "tools/texts/CodePage.h"

namespace {

// The header takes 288 pixels of 16 point text, which is hardly ever more.
constexpr std::size_t kLongestHeader = 32;

constexpr SRule kTitleMissing = {
    "title-missing", SV_WARNING, "the second line is no title",
    "The second line of both files is the title of the dialog: a placeholder such as <<2001>>, or the title\n"
    "itself. Without it the dialog is called after the file, and an empty one leaves it without a name; a "
    "block\n"
    "or a parameter that stands there is shown as the title as well.",
    "Hinged door\nVAR\n$1 = \"<<1501>>\"D 900\nEND_VAR"};

constexpr SRule kTitleTextLost = {"title-text-lost", SV_WARNING,
                                  "text beside the placeholder of a title is not shown",
                                  "A title with a placeholder is the placeholder's text alone, unlike a "
                                  "label: what stands beside it on the\n"
                                  "line is dropped. Put the whole title into the text.",
                                  "Hinged door\nItem: <<2001>>"};

constexpr SRule kTitleTextUnknown = {"title-text-unknown", SV_ERROR, "the title's text does not exist",
                                     "TavrinRes.dll has no text with the number in the title's placeholder, "
                                     "so that the title comes out empty.",
                                     "Hinged door\n<<2999>>"};

constexpr SRule kTitleTooLong = {"title-too-long", SV_WARNING, "the title is longer than the dialog shows",
                                 "The header above the parameters has room for about 32 characters, of which "
                                 "text 1363 takes its part. What\n"
                                 "is longer is cut off at the right.",
                                 "Hinged door\nDouble door with two glazed side panels and a fanlight"};

constexpr const SRule* kRules[] = {&kTitleMissing, &kTitleTextLost, &kTitleTextUnknown, &kTitleTooLong};

}  // namespace

RuleList TitleRules() {
    return kRules;
}

void CTitleRules::TakeLine(const SItemLine& line) {
    ++m_lineCount;
    if (line.index != tavrin::itemdlg::kTitleLine) {
        return;
    }
    CheckForm(line);
    const int number = tavrin::itemdlg::PlaceholderNumber(line.text);
    if (number != 0) {
        CheckPlaceholder(line, number);
    } else {
        CheckPlaceholderForm(Findings(), line, 0, line.text, "the title shows it as it stands here");
    }
    CheckLength(line, number);
}

void CTitleRules::CheckForm(const SItemLine& line) {
    const std::wstring& text = line.text;
    if (std::all_of(text.begin(), text.end(), IsBlank)) {
        Findings().Add(kTitleMissing, line, 0, text.size(), "the second line, the dialog's title, is empty");
    } else if (line.kind != LK_OUTSIDE || tavrin::itemdlg::ParseParameterLine(text)) {
        Findings().Add(kTitleMissing, line, 0, text.size(),
                       "the second line is the dialog's title, not a part of the parameter block");
    }
}

void CTitleRules::CheckPlaceholder(const SItemLine& line, int number) {
    const std::wstring_view before = tavrin::itemdlg::LabelPrefix(line.text);
    const std::wstring_view behind = tavrin::itemdlg::LabelSuffix(line.text);
    if (!before.empty() || !behind.empty()) {
        const std::size_t start = before.empty() ? line.text.size() - behind.size() : 0;
        Findings().Add(kTitleTextLost, line, start, before.empty() ? behind.size() : before.size(),
                       Quoted(before.empty() ? behind : before) +
                           " is not shown: a title with a placeholder is the placeholder's text alone");
    }
    CheckPlaceholderNumber(Findings(), line, before.size(), number);
    if (m_texts != nullptr && number <= tavrin::itemdlg::kHighestTextNumber &&
        m_texts->Find(static_cast<unsigned>(number)) == nullptr) {
        Findings().Add(kTitleTextUnknown, line, before.size(),
                       line.text.size() - before.size() - behind.size(),
                       "the title comes out empty: there is no text " + std::to_string(number));
    }
}

void CTitleRules::CheckLength(const SItemLine& line, int number) {
    std::size_t prefix = 0;
    std::size_t longest = number == 0 ? line.text.size() : 0;
    for (std::size_t language = 0; m_texts != nullptr && language < m_texts->Languages().size(); ++language) {
        const SText* const header = m_texts->Find(tavrin::itemdlg::kHeaderPrefixText, language);
        prefix = std::max(prefix, header != nullptr ? header->text.size() : 0);
        const SText* const title =
            number != 0 ? m_texts->Find(static_cast<unsigned>(number), language) : nullptr;
        longest = std::max(longest, title != nullptr ? title->text.size() : 0);
    }
    if (prefix + longest > kLongestHeader) {
        const std::string room = std::to_string(kLongestHeader);
        Findings().Add(kTitleTooLong, line, 0, line.text.size(),
                       "the title has " + std::to_string(longest) + " characters" +
                           (prefix != 0 ? " behind the " + std::to_string(prefix) + " of text 1363" : "") +
                           ", the header has room for about " + room);
    }
}

void CTitleRules::Finish() {
    if (m_lineCount <= tavrin::itemdlg::kTitleLine) {
        Findings().Add(kTitleMissing, m_lineCount == 0
                                          ? "the file is empty: its second line is the dialog's title"
                                          : "the file ends before its second line, the dialog's title");
    }
}
