#include "tools/tavrincheck/LabelExtraction.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include "itemdlg/BlockTracker.h"
#include "itemdlg/ItemFiles.h"
#include "itemdlg/TemplateText.h"
#include "tools/files/Files.h"
#include "tools/rules/TextRules.h"

namespace tavrin::tools {

namespace {

constexpr std::size_t kTitleIndex = itemdlg::kTitleLine;

// The reason why a literal cannot be moved.
struct Refusal {
    std::string reason;
};

class CExtractor {
public:
    CExtractor(const std::vector<FileLine>& lines, unsigned firstNumber, KnownTextNumbers known)
        : m_known(std::move(known)), m_next(firstNumber) {
        m_extraction.lines = lines;
        for (const FileLine& line : lines) {
            TakePlaceholders(line.text);
        }
    }

    Extraction Run() {
        itemdlg::CBlockTracker block;
        const std::vector<FileLine>& lines = m_extraction.lines;
        for (std::size_t index = 0; index < lines.size(); ++index) {
            const bool isInBlock = block.TakeLine(lines[index].text);
            const bool isParameter = isInBlock && itemdlg::ParseParameterLine(lines[index].text);
            if (index != kTitleIndex && !isParameter) {
                continue;
            }
            try {
                MoveLine(index, isParameter);
            } catch (const Refusal& refusal) {
                m_extraction.notes.push_back("line " + std::to_string(index + 1) +
                                             " stays: " + refusal.reason);
            }
        }
        return std::move(m_extraction);
    }

private:
    // All numbers in double angle brackets, whether the reader uses them or not.
    void TakePlaceholders(const std::wstring& line) {
        for (std::size_t at = line.find(L"<<"); at != std::wstring::npos; at = line.find(L"<<", at + 1)) {
            const std::size_t end = line.find_first_not_of(L"0123456789", at + 2);
            if (end == std::wstring::npos || line.compare(end, 2, L">>") != 0) {
                continue;
            }
            const int number = itemdlg::PlaceholderNumber(line.substr(at, end + 2 - at));
            if (number > 0) {
                m_known.taken.insert(static_cast<unsigned>(number));
            }
        }
    }

    void MoveLine(std::size_t index, bool isParameter) {
        std::wstring& line = m_extraction.lines[index].text;
        if (index == kTitleIndex && isParameter) {
            throw Refusal{"it is title and parameter at once, give the file a title line"};
        }
        line = index == kTitleIndex ? MovedTitle(line) : MovedLabel(line);
    }

    std::wstring MovedTitle(const std::wstring& line) {
        if (line.empty() || itemdlg::PlaceholderNumber(line) != 0) {
            return line;
        }
        if (line == itemdlg::CBlockTracker::kOpeningLine || line == itemdlg::CBlockTracker::kClosingLine) {
            throw Refusal{"it is the title and bounds a block, give the file a title line"};
        }
        if (line.find(L'\0') != std::wstring::npos) {
            throw Refusal{"its title contains a null character"};
        }
        return L"<<" + std::to_wstring(NumberOf(line)) + L">>";
    }

    std::wstring MovedLabel(const std::wstring& line) {
        const itemdlg::ParameterLine parameter = *itemdlg::ParseParameterLine(line);
        if (itemdlg::PlaceholderNumber(parameter.label) != 0) {
            return line;
        }
        std::wstring text = parameter.label;
        const bool isMarked = itemdlg::TakeReadOnlyMark(text);
        if (text.empty()) {
            throw Refusal{"its label is empty, write one"};
        }
        // Placeholders in the value would be used instead of the label's.
        if (itemdlg::PlaceholderNumber(WithLabel(line, parameter, L"<<1>>")) != 1) {
            throw Refusal{"its value contains a placeholder, which OK would write into the label"};
        }
        const std::wstring number = std::to_wstring(NumberOf(text));
        return WithLabel(line, parameter, L"<<" + number + (isMarked ? L">>%" : L">>"));
    }

    // There is no quote before the label's.
    static std::wstring WithLabel(std::wstring line, const itemdlg::ParameterLine& parameter,
                                  const std::wstring& label) {
        return line.replace(line.find(L'"') + 1, parameter.label.size(), label);
    }

    // The number of a text; a new one if the script does not have the text.
    unsigned NumberOf(const std::wstring& text) {
        if (text.size() > CTextTable::kLongestText) {
            throw Refusal{"its text is longer than the " + std::to_string(CTextTable::kLongestText) +
                          " characters that the module takes"};
        }
        const auto found = m_known.texts.find(text);
        if (found != m_known.texts.end()) {
            return found->second;
        }
        while (m_known.taken.count(m_next) != 0) {
            ++m_next;
        }
        if (m_next > itemdlg::kHighestTextNumber) {
            throw CToolError("there is no unused number left for a text: the highest is " +
                             std::to_string(itemdlg::kHighestTextNumber) + ", give a lower one with --from");
        }
        m_known.taken.insert(m_next);
        m_known.texts[text] = m_next;
        m_extraction.newTexts.push_back({m_next, text});
        return m_next;
    }

    KnownTextNumbers m_known;
    unsigned m_next;
    Extraction m_extraction;
};

}  // namespace

KnownTextNumbers KnownTexts(const CTextTable& script) {
    KnownTextNumbers known;
    known.taken.insert(ModuleTexts().begin(), ModuleTexts().end());
    for (const TextEntry& text : script.Texts()) {
        known.taken.insert(text.number);
        // Number 0 is not a placeholder. Of equal texts the first is used.
        if (text.language == 0 && text.number != 0) {
            known.texts.try_emplace(text.text, text.number);
        }
    }
    return known;
}

Extraction ExtractLabels(const std::vector<FileLine>& lines, unsigned firstNumber,
                         const KnownTextNumbers& known) {
    return CExtractor(lines, firstNumber, known).Run();
}

}  // namespace tavrin::tools
