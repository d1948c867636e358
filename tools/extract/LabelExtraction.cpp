#include "tools/extract/LabelExtraction.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

#include "itemdlg/BlockTracker.h"
#include "itemdlg/ItemFiles.h"
#include "itemdlg/TemplateText.h"
#include "tools/files/Files.h"

namespace {

constexpr std::size_t kTitleIndex = tavrin::itemdlg::kTitleLine;

// A refusal to move a literal, in words for a note.
struct SRefusal {
    std::string reason;
};

class CExtractor {
public:
    CExtractor(const std::vector<SFileLine>& lines, unsigned firstNumber, SKnownTexts known)
        : m_known(std::move(known)), m_next(firstNumber) {
        m_extraction.lines = lines;
        for (const SFileLine& line : lines) {
            TakePlaceholders(line.text);
        }
    }

    SExtraction Run() {
        tavrin::itemdlg::CBlockTracker block;
        const std::vector<SFileLine>& lines = m_extraction.lines;
        for (std::size_t index = 0; index < lines.size(); ++index) {
            const bool isInBlock = block.TakeLine(lines[index].text);
            const bool isParameter = isInBlock && tavrin::itemdlg::ParseParameterLine(lines[index].text);
            if (index != kTitleIndex && !isParameter) {
                continue;
            }
            try {
                MoveLine(index, isParameter);
            } catch (const SRefusal& refusal) {
                m_extraction.notes.push_back("line " + std::to_string(index + 1) +
                                             " stays: " + refusal.reason);
            }
        }
        return std::move(m_extraction);
    }

private:
    // All numbers in double angle brackets, whether they count or not.
    void TakePlaceholders(const std::wstring& line) {
        for (std::size_t at = line.find(L"<<"); at != std::wstring::npos; at = line.find(L"<<", at + 1)) {
            const std::size_t end = line.find_first_not_of(L"0123456789", at + 2);
            if (end == std::wstring::npos || line.compare(end, 2, L">>") != 0) {
                continue;
            }
            const int number = tavrin::itemdlg::PlaceholderNumber(line.substr(at, end + 2 - at));
            if (number > 0) {
                m_known.taken.insert(static_cast<unsigned>(number));
            }
        }
    }

    void MoveLine(std::size_t index, bool isParameter) {
        std::wstring& line = m_extraction.lines[index].text;
        if (index == kTitleIndex && isParameter) {
            throw SRefusal{"it is title and parameter at once, give the file a title line"};
        }
        line = index == kTitleIndex ? MovedTitle(line) : MovedLabel(line);
    }

    std::wstring MovedTitle(const std::wstring& line) {
        if (line.empty() || tavrin::itemdlg::PlaceholderNumber(line) != 0) {
            return line;
        }
        if (line == tavrin::itemdlg::CBlockTracker::kOpeningLine ||
            line == tavrin::itemdlg::CBlockTracker::kClosingLine) {
            throw SRefusal{"it is the title and bounds a block, give the file a title line"};
        }
        if (line.find(L'\0') != std::wstring::npos) {
            throw SRefusal{"its title holds a null character"};
        }
        return L"<<" + std::to_wstring(NumberOf(line)) + L">>";
    }

    std::wstring MovedLabel(const std::wstring& line) {
        const tavrin::itemdlg::ParameterLine parameter = *tavrin::itemdlg::ParseParameterLine(line);
        if (tavrin::itemdlg::PlaceholderNumber(parameter.label) != 0) {
            return line;
        }
        std::wstring text = parameter.label;
        const bool isMarked = tavrin::itemdlg::TakeReadOnlyMark(text);
        if (text.empty()) {
            throw SRefusal{"its label is empty, write one"};
        }
        // Where the value holds angle brackets of its own, those would count in place of the label's.
        if (tavrin::itemdlg::PlaceholderNumber(WithLabel(line, parameter, L"<<1>>")) != 1) {
            throw SRefusal{"its value holds a placeholder, which OK would write into the label"};
        }
        const std::wstring number = std::to_wstring(NumberOf(text));
        return WithLabel(line, parameter, L"<<" + number + (isMarked ? L">>%" : L">>"));
    }

    // Neither the number nor the blanks before the label hold a quote.
    static std::wstring WithLabel(std::wstring line, const tavrin::itemdlg::ParameterLine& parameter,
                                  const std::wstring& label) {
        return line.replace(line.find(L'"') + 1, parameter.label.size(), label);
    }

    // The number of a text, a new one if no text is the same.
    unsigned NumberOf(const std::wstring& text) {
        if (text.size() > CTextTable::kLongestText) {
            throw SRefusal{"its text is longer than the " + std::to_string(CTextTable::kLongestText) +
                           " characters that the module takes"};
        }
        const auto found = m_known.texts.find(text);
        if (found != m_known.texts.end()) {
            return found->second;
        }
        while (m_known.taken.count(m_next) != 0) {
            ++m_next;
        }
        if (m_next > tavrin::itemdlg::kHighestTextNumber) {
            throw CToolError("there is no free number left for a text: the highest is " +
                             std::to_string(tavrin::itemdlg::kHighestTextNumber) +
                             ", begin lower with --from");
        }
        m_known.taken.insert(m_next);
        m_known.texts[text] = m_next;
        m_extraction.newTexts.push_back({m_next, text});
        return m_next;
    }

    SKnownTexts m_known;
    unsigned m_next;
    SExtraction m_extraction;
};

}  // namespace

SKnownTexts KnownTexts(const CTextTable& script) {
    SKnownTexts known;
    for (const SText& text : script.Texts()) {
        known.taken.insert(text.number);
        // Number 0 is no placeholder; a text that is cut or stands there twice shows as its first.
        if (text.language == 0 && text.number != 0) {
            known.texts.try_emplace(text.text, text.number);
        }
    }
    return known;
}

SExtraction ExtractLabels(const std::vector<SFileLine>& lines, unsigned firstNumber,
                          const SKnownTexts& known) {
    return CExtractor(lines, firstNumber, known).Run();
}
