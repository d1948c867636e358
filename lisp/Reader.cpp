#include "lisp/Reader.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <vector>

namespace tavrin::lisp {

namespace {

// Limits the stack that the reader uses: it recurses once per level of nesting.
constexpr int kMaxDepth = 1000;

bool IsBlank(wchar_t c) {
    return c <= L' ' || c == L'\u00A0' || c == L'\uFEFF';
}

bool EndsWord(wchar_t c) {
    return IsBlank(c) || c == L'(' || c == L')' || c == L'\'' || c == L'"' || c == L';';
}

// Whether a word has the form of a number: digits with an optional sign, point and exponent.
bool LooksLikeNumber(std::wstring_view word) {
    std::size_t i = 0;
    const auto skipSign = [&] { i += i < word.size() && (word[i] == L'+' || word[i] == L'-'); };
    const auto skipDigits = [&] {
        const std::size_t start = i;
        while (i < word.size() && word[i] >= L'0' && word[i] <= L'9') {
            ++i;
        }
        return i - start;
    };
    skipSign();
    std::size_t digits = skipDigits();
    if (i < word.size() && word[i] == L'.') {
        ++i;
        digits += skipDigits();
    }
    if (digits == 0) {
        return false;
    }
    if (i < word.size() && (word[i] == L'e' || word[i] == L'E')) {
        ++i;
        skipSign();
        if (skipDigits() == 0) {
            return false;
        }
    }
    return i == word.size();
}

// Reads the whole of `digits`; nothing when the number does not fit.
template <typename TNumber>
std::optional<TNumber> ToNumber(const std::string& digits) {
    TNumber number;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return read.ec == std::errc() ? std::optional(number) : std::nullopt;
}

}  // namespace

std::optional<CValue> CReader::Read() {
    SkipBlanks();
    if (AtEnd()) {
        return std::nullopt;
    }
    return ReadExpression(0);
}

wchar_t CReader::Take() {
    const wchar_t c = m_text[m_next++];
    if (c == L'\n') {
        ++m_position.line;
        m_position.column = 1;
    } else {
        ++m_position.column;
    }
    return c;
}

void CReader::SkipBlanks() {
    while (!AtEnd()) {
        if (Peek() == L';') {
            SkipComment();
        } else if (IsBlank(Peek())) {
            Take();
        } else {
            return;
        }
    }
}

void CReader::SkipComment() {
    const Position start = m_position;
    if (m_text.substr(m_next, 2) != L";|") {
        while (!AtEnd() && Peek() != L'\n') {
            Take();
        }
        return;
    }
    const std::size_t end = m_text.find(L"|;", m_next + 2);
    if (end == std::wstring_view::npos) {
        FailUnfinished(start, L"a comment is not closed");
    }
    while (m_next != end + 2) {
        Take();
    }
}

// At the first character of an expression.
CValue CReader::ReadExpression(int depth) {
    const Position start = m_position;
    if (depth > kMaxDepth) {
        Fail(start, L"expressions are nested more than " + std::to_wstring(kMaxDepth) + L" levels deep");
    }
    switch (Peek()) {
        case L'(':
            Take();
            return ReadList(start, depth);
        case L')':
            Fail(start, L"a closing parenthesis has no opening one");
        case L'"':
            Take();
            return ReadString(start);
        case L'\'': {
            Take();
            SkipBlanks();
            if (AtEnd()) {
                FailUnfinished(start, L"nothing follows the quote");
            }
            if (Peek() == L')') {
                Fail(start, L"nothing follows the quote");
            }
            const CValue quoted[] = {CValue::Symbol(L"QUOTE"), ReadExpression(depth + 1)};
            return CValue::List(quoted, {}, {start.line, m_file});
        }
        default:
            return ReadWord(start);
    }
}

CValue CReader::ReadList(Position start, int depth) {
    std::vector<CValue> elements;
    for (;;) {
        SkipBlanks();
        if (AtEnd()) {
            FailUnfinished(start, L"a parenthesis is not closed");
        }
        if (Peek() == L')') {
            Take();
            return CValue::List(elements, {}, {start.line, m_file});
        }
        const Position position = m_position;
        const bool dot = Peek() == L'.' && (m_next + 1 == m_text.size() || EndsWord(m_text[m_next + 1]));
        if (!dot) {
            elements.push_back(ReadExpression(depth + 1));
            continue;
        }
        Take();
        if (elements.empty()) {
            Fail(position, L"the dot has no element before it");
        }
        CValue tail = ReadTail(position, depth);
        return CValue::List(elements, std::move(tail), {start.line, m_file});
    }
}

// The part of a dotted pair between the dot and the closing parenthesis.
CValue CReader::ReadTail(Position dot, int depth) {
    SkipBlanks();
    if (AtEnd()) {
        FailUnfinished(dot, L"nothing follows the dot");
    }
    if (Peek() == L')') {
        Fail(dot, L"nothing follows the dot");
    }
    CValue tail = ReadExpression(depth + 1);
    SkipBlanks();
    if (AtEnd()) {
        FailUnfinished(dot, L"a parenthesis is not closed");
    }
    if (Peek() != L')') {
        Fail(dot, L"more than one expression follows the dot");
    }
    Take();
    return tail;
}

CValue CReader::ReadString(Position start) {
    const std::size_t quote = m_next - 1;
    std::wstring text;
    for (;;) {
        if (AtEnd()) {
            FailUnfinished(start, L"a string is not closed");
        }
        const Position position = m_position;
        wchar_t c = Take();
        if (c == L'"') {
            m_textRanges.push_back({quote, m_next - quote});
            return CValue::String(std::move(text));
        }
        if (c == L'\\') {
            if (AtEnd()) {
                FailUnfinished(start, L"a string is not closed");
            }
            c = Take();
            if (c == L'n') {
                c = L'\n';
            } else if (c == L'r') {
                c = L'\r';
            } else if (c == L't') {
                c = L'\t';
            } else if (c != L'"' && c != L'\\') {
                Fail(position, std::wstring(L"the escape \\") + c +
                                   L" is unknown: a backslash in a string is written \\\\");
            }
        }
        text += c;
    }
}

std::wstring_view CReader::TakeWord() {
    const std::size_t start = m_next;
    while (!AtEnd() && !EndsWord(Peek())) {
        Take();
    }
    return m_text.substr(start, m_next - start);
}

CValue CReader::ReadWord(Position start) {
    const std::wstring_view word = TakeWord();
    if (word == L".") {
        Fail(start, L"a misplaced dot");
    }
    if (!LooksLikeNumber(word)) {
        return CValue::Symbol(word);
    }

    std::string digits(word.begin(), word.end());
    if (digits[0] == '+') {
        digits.erase(0, 1);
    }
    if (digits.find_first_of(".eE") == std::string::npos) {
        const auto number = ToNumber<std::int32_t>(digits);
        if (!number) {
            Fail(start, L"the whole number " + std::wstring(word) + L" does not fit in 32 bits");
        }
        return CValue::Integer(*number);
    }
    const auto number = ToNumber<double>(digits);
    if (!number) {
        Fail(start, L"the real " + std::wstring(word) + L" is too large or too small");
    }
    return CValue::Real(*number);
}

void CReader::Fail(Position position, const std::wstring& what) {
    throw CReadError(position.line, position.column, what);
}

void CReader::FailUnfinished(Position position, const std::wstring& what) {
    throw CReadError(position.line, position.column, what, true);
}

bool IsSymbolName(std::wstring_view name) {
    return !name.empty() && std::none_of(name.begin(), name.end(), EndsWord) && name != L"." &&
           !LooksLikeNumber(name) && UpperCase(name) != L"NIL" && UpperCase(name) != L"T";
}

}  // namespace tavrin::lisp
