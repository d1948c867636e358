#include "tools/rules/LineRepair.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "itemdlg/TemplateText.h"
#include "tools/rules/Characters.h"

namespace tavrin::tools {

namespace {

// Typographic quotes in code page 1252, and other characters that are mistaken for quotes.
constexpr std::wstring_view kForeignQuotes = L"\u0093\u0094\u0084\u0091\u0092\u00AB\u00BB'`\u00B4";
constexpr std::wstring_view kTypeLetters = L"IDRidr";

bool IsLetter(wchar_t character) {
    return (character >= L'A' && character <= L'Z') || (character >= L'a' && character <= L'z');
}

// Whether a value may begin with the character.
bool BeginsValue(wchar_t character) {
    return character == L' ' || IsDigit(character) || character == L'-' || character == L'+' ||
           character == L'.';
}

// Scans the line from the left and builds a line that the reader would accept.
class CLineRepair {
public:
    CLineRepair(const std::wstring& line, const RepairRules& rules) : m_line(line), m_rules(rules) {}

    std::vector<Repair> Run() {
        TakeStart();
        TakeNumber();
        TakeEquals();
        TakeOpeningQuote();
        if (!TakeRest()) {
            m_repairs.clear();
        }
        return std::move(m_repairs);
    }

private:
    bool AtEnd() const { return m_next == m_line.size(); }
    wchar_t Peek() const { return AtEnd() ? L'\0' : m_line[m_next]; }

    void Report(const Rule* rule, std::size_t start, std::size_t length, std::string message) {
        m_repairs.push_back({rule, start, length, std::move(message)});
    }

    // Skips blanks; only spaces are allowed there.
    void SkipBlanks() {
        const std::size_t start = m_next;
        while (IsBlank(Peek())) {
            ++m_next;
        }
        const auto first = m_line.begin() + static_cast<std::ptrdiff_t>(start);
        const auto last = m_line.begin() + static_cast<std::ptrdiff_t>(m_next);
        const auto other = std::find_if(first, last, [](wchar_t c) { return c != L' '; });
        if (other != last) {
            Report(m_rules.tab, static_cast<std::size_t>(other - m_line.begin()), 1,
                   "only spaces are allowed here, not tabs or other blanks");
        }
    }

    void TakeStart() {
        while (IsBlank(Peek())) {
            ++m_next;
        }
        if (m_next > 0) {
            Report(m_rules.leadingBlank, 0, m_next, "nothing is allowed before the '$'");
        }
        if (Peek() == L'$') {
            ++m_next;
        }
        m_repaired = L"$";
    }

    void TakeNumber() {
        const std::size_t start = m_next;
        const std::size_t end = std::min(m_line.find_first_of(L"=\":", m_next), m_line.size());
        while (m_next < end && !IsBlank(Peek())) {
            m_repaired += IsDigit(Peek()) ? std::wstring(1, Peek()) : std::wstring();
            ++m_next;
        }
        std::size_t last = m_next;
        SkipBlanks();
        if (m_next < end) {  // "$ 1 =", "$1 2 ="
            last = m_next = end;
        }
        const std::wstring_view number = std::wstring_view(m_line).substr(start, last - start);
        if (!std::all_of(number.begin(), number.end(), IsDigit)) {
            const std::size_t length = number.find_last_not_of(L" \t") + 1;
            Report(m_rules.number, start, length,
                   Quoted(number.substr(0, length)) + " is not a number: only digits may follow the '$'");
        }
    }

    void TakeEquals() {
        const std::size_t start = m_next;
        while (Peek() == L'=' || Peek() == L':') {
            ++m_next;
        }
        const std::wstring_view sign = std::wstring_view(m_line).substr(start, m_next - start);
        if (sign != L"=") {
            Report(m_rules.equals, start, sign.size(),
                   sign.empty() ? "the '=' is missing here" : Quoted(sign) + " instead of one '='");
        }
        SkipBlanks();
        m_repaired += L" = ";
    }

    void TakeOpeningQuote() {
        m_repaired += L'"';
        if (Peek() == L'"') {
            ++m_next;
            return;
        }
        const bool isForeign = !AtEnd() && kForeignQuotes.find(Peek()) != std::wstring_view::npos;
        if (isForeign) {
            Report(m_rules.quote, m_next, 1, "the label must begin with the straight quote '\"'");
            ++m_next;
        } else {
            Report(m_rules.quote, m_next, 0, "the quote before the label is missing here");
        }
    }

    // The label, its closing quote, the letter and the value.
    bool TakeRest() {
        const std::wstring rest = m_line.substr(m_next);
        return Accepts(rest) || TakeForeignClosing(rest) || TakeLetter(rest) || TakeMissingClosing(rest);
    }

    bool Accepts(const std::wstring& rest) const {
        return itemdlg::ParseParameterLine(m_repaired + rest).has_value();
    }

    bool TakeForeignClosing(std::wstring rest) {
        for (std::size_t position = rest.size(); position-- > 0;) {
            if (kForeignQuotes.find(rest[position]) == std::wstring_view::npos ||
                !IsLetterAt(rest, position + 1)) {
                continue;
            }
            rest[position] = L'"';
            if (!Accepts(rest)) {
                return false;
            }
            Report(m_rules.quote, m_next + position, 1, "the label must end with the straight quote '\"'");
            return true;
        }
        return false;
    }

    // Whether there is a type letter, followed by a value or the end.
    static bool IsLetterAt(const std::wstring& text, std::size_t position) {
        return position < text.size() && kTypeLetters.find(text[position]) != std::wstring_view::npos &&
               (position + 1 == text.size() || BeginsValue(text[position + 1]));
    }

    // The last quote is not followed by a type letter.
    bool TakeLetter(const std::wstring& rest) {
        const std::size_t quote = rest.rfind(L'"');
        if (quote == std::wstring::npos) {
            return false;
        }
        std::size_t position = quote + 1;
        while (position < rest.size() && IsBlank(rest[position])) {
            ++position;
        }
        const wchar_t found = position < rest.size() ? rest[position] : L'\0';
        const std::size_t start = m_next + quote + 1;
        std::wstring repaired = rest.substr(0, quote + 1);
        if (kTypeLetters.find(found) != std::wstring_view::npos && position > quote + 1) {
            Report(m_rules.typeLetter, start, position - quote - 1,
                   "the type letter must follow the quote without a blank");
            repaired += rest.substr(position);
        } else if (IsLetter(found)) {
            Report(m_rules.typeLetter, m_next + position, 1,
                   Quoted(std::wstring_view(&found, 1)) + " is not a type letter: write I, D or R");
            repaired += L"R" + rest.substr(position + 1);
        } else {
            Report(m_rules.typeLetter, start, 0, "the type letter is missing here: write I, D or R");
            repaired += L"R" + rest.substr(quote + 1);
        }
        if (!Accepts(repaired)) {
            m_repairs.pop_back();
            return false;
        }
        return true;
    }

    // The last type letter that is followed by a value has no quote before it.
    bool TakeMissingClosing(const std::wstring& rest) {
        for (std::size_t position = rest.size(); position-- > 1;) {
            if (!IsLetterAt(rest, position) || IsLetter(rest[position - 1])) {
                continue;
            }
            if (!Accepts(rest.substr(0, position) + L"\"" + rest.substr(position))) {
                return false;
            }
            Report(m_rules.quote, m_next + position, 0,
                   "the quote between the label and the type letter is missing here");
            return true;
        }
        return false;
    }

    const std::wstring& m_line;
    const RepairRules& m_rules;
    std::size_t m_next = 0;
    std::wstring m_repaired;  // the part before m_next, repaired
    std::vector<Repair> m_repairs;
};

}  // namespace

std::vector<Repair> RepairLine(const std::wstring& line, const RepairRules& rules) {
    return CLineRepair(line, rules).Run();
}

}  // namespace tavrin::tools
