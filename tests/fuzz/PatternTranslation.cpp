// Reading a pattern and writing it for PCRE2.
#include "tests/fuzz/PatternTranslation.h"

#include <cstdint>
#include <cstdio>
#include <map>
#include <string_view>

namespace {

// Numbers as Parse answers them.
enum EError : unsigned {
    BraceExpected = 2,
    ParenthesisExpected = 3,
    BracketExpected = 4,
    EmptySet = 6,
    BadReference = 7,
    ReversedRange = 8,
    EmptyRepetition = 9
};

struct TranslationError {
    EError error;
};

const std::map<wchar_t, std::string>& Abbreviations() {
    static const std::map<wchar_t, std::string> texts = {
        {L'a', "[a-zA-Z0-9]"}, {L'b', "[ \\t]"},        {L'c', "[a-zA-Z]"},
        {L'd', "[0-9]"},       {L'h', "[0-9a-fA-F]"},   {L'n', "(?:\\r|\\r?\\n)"},
        {L'q', "\"[^\"]*\""},  {L'w', "(?:[a-zA-Z]+)"}, {L'z', "(?:[0-9]+)"},
    };
    return texts;
}

// What a part of the pattern means: its text for PCRE2, and whether it can match the empty text.
struct Part {
    std::string text;
    bool canBeEmpty = true;
};

class CTranslator {
public:
    explicit CTranslator(const std::wstring& pattern) : m_pattern(pattern) {}

    PatternTranslation Translate() {
        PatternTranslation result;
        result.anchored = TakeIf(L'^');
        try {
            const std::string text = Sequence().text;
            result.pattern.assign(text.begin(), text.end());
        } catch (const TranslationError& failure) {
            result.error = failure.error;
        }
        result.groupCount = static_cast<unsigned>(m_groupCount);
        return result;
    }

private:
    // Null at the end: patterns hold no null character.
    wchar_t Peek() const { return m_next < m_pattern.size() ? m_pattern[m_next] : L'\0'; }
    wchar_t Take() { return m_pattern[m_next++]; }
    bool TakeIf(wchar_t character) {
        const bool found = Peek() == character;
        m_next += found ? 1 : 0;
        return found;
    }
    bool SequenceEnds() const {
        return Peek() == L'\0' || Peek() == L'}' || Peek() == L']' || Peek() == L')';
    }

    static std::string Character(wchar_t character) {
        char text[16];
        std::snprintf(text, sizeof text, "\\x{%X}", static_cast<unsigned>(character));
        return text;
    }

    // Elements up to a closer of whatever kind, or to the end.
    Part Sequence() {
        Part sequence;
        while (!SequenceEnds()) {
            const Part chain = Chain();
            sequence.text += chain.text;
            sequence.canBeEmpty = sequence.canBeEmpty && chain.canBeEmpty;
        }
        return sequence;
    }

    // An element, or several with bars between them.
    Part Chain() {
        Part chain = Element();
        while (TakeIf(L'|')) {
            const Part next = Element();
            chain.text += "|" + next.text;
            chain.canBeEmpty = chain.canBeEmpty || next.canBeEmpty;
        }
        chain.text = "(?:" + chain.text + ")";
        return chain;
    }

    Part Element() {
        Part element = Atom();
        const wchar_t quantifier = Peek();
        if (quantifier != L'*' && quantifier != L'+' && quantifier != L'?') {
            return element;
        }
        Take();
        if (quantifier != L'?' && element.canBeEmpty) {
            throw TranslationError{EmptyRepetition};
        }
        const bool lazy = TakeIf(L'?');
        return {"(?:" + element.text + ")" + static_cast<char>(quantifier) + (lazy ? "?" : ""),
                element.canBeEmpty || quantifier != L'+'};
    }

    Part Atom() {
        if (SequenceEnds()) {
            return {};
        }
        const wchar_t character = Take();
        switch (character) {
            case L'.':
                return {".", false};
            case L'!':
                return {"(?!" + Atom().text + ")", true};
            case L'[':
                return {Set(), false};
            case L'{':
                return CapturingGroup();
            case L'(': {
                const Part inside = Sequence();
                if (!TakeIf(L')')) {
                    throw TranslationError{ParenthesisExpected};
                }
                return {"(?:" + inside.text + ")", inside.canBeEmpty};
            }
            case L'\\':
                return Escape();
            case L'$':
                if (Peek() == L'\0') {
                    return {"\\z", true};
                }
                break;
            default:
                break;
        }
        return {Character(character), false};
    }

    Part CapturingGroup() {
        ++m_groupCount;
        const Part inside = Sequence();
        if (!TakeIf(L'}')) {
            throw TranslationError{BraceExpected};
        }
        return {"(" + inside.text + ")", inside.canBeEmpty};
    }

    Part Escape() {
        const wchar_t character = Peek();
        if (character == L'\0') {
            return {Character(L'\\'), false};
        }
        if (character >= L'0' && character <= L'9') {
            return Reference();
        }
        Take();
        const auto abbreviation = Abbreviations().find(character);
        return {abbreviation != Abbreviations().end() ? abbreviation->second : Character(character), false};
    }

    Part Reference() {
        std::uint64_t number = 0;
        for (; Peek() >= L'0' && Peek() <= L'9'; Take()) {
            number = number > 1000 ? number : number * 10 + static_cast<std::uint64_t>(Peek() - L'0');
        }
        if (number >= m_groupCount) {
            throw TranslationError{BadReference};
        }
        return {"\\g{" + std::to_string(number + 1) + "}", true};
    }

    std::string Set() {
        std::string set = TakeIf(L'^') ? "[^" : "[";
        if (Peek() == L']') {
            throw TranslationError{EmptySet};
        }
        while (!TakeIf(L']')) {
            const bool escaped = TakeIf(L'\\');
            if (Peek() == L'\0') {
                throw TranslationError{BracketExpected};
            }
            wchar_t first = Take();
            if (escaped && first == L't') {
                first = L'\t';
            }
            wchar_t last = first;
            if (TakeIf(L'-')) {
                if (Peek() == L'\0' || Peek() == L']') {
                    throw TranslationError{BracketExpected};
                }
                last = Take();
            }
            if (last < first) {
                throw TranslationError{ReversedRange};
            }
            set += Character(first) + "-" + Character(last);
        }
        return set + "]";
    }

    const std::wstring& m_pattern;
    std::size_t m_next = 0;
    std::size_t m_groupCount = 0;
};

}  // namespace

PatternTranslation TranslatePattern(const std::wstring& pattern) {
    return CTranslator(pattern).Translate();
}

std::wstring LowerCase(std::wstring text) {
    for (wchar_t& character : text) {
        const bool ascii = character >= L'A' && character <= L'Z';
        const bool latin = character >= 0xC0 && character <= 0xDE && character != 0xD7;
        character = ascii || latin ? static_cast<wchar_t>(character + 0x20) : character;
    }
    return text;
}
