// Reads LISP text into values, one expression at a time.
//
// Lists in parentheses, 'x for (quote x), dotted pairs (a . b), texts in double quotes with the escapes
// \" \\ \n \r \t, whole numbers, reals (1.0, .5, 1e3), symbols; blanks separate. A semicolon begins a comment
// that ends with the line; one between ;| and |; may span lines.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "lisp/LispError.h"
#include "lisp/Value.h"

class CReader {
public:
    // The text must outlive the reader.
    explicit CReader(std::wstring_view text) : m_text(text) {}

    // The next expression, whose lists know their lines; nothing when only blanks and comments are left.
    // Throws CReadError for a parenthesis, quote or comment that is not closed or not opened, an unknown
    // escape, a misplaced dot, a whole number beyond 32 bits, a real that a double cannot hold, expressions
    // nested more than a thousand deep.
    std::optional<CValue> Read();

    // Where the texts that were read stand with their quotes, in characters from 0, in their order.
    struct SPlace {
        std::size_t start = 0;
        std::size_t length = 0;
    };
    const std::vector<SPlace>& TextPlaces() const { return m_textPlaces; }

private:
    struct SPosition {
        int line = 1;
        int column = 1;
    };

    bool AtEnd() const { return m_next == m_text.size(); }
    wchar_t Peek() const { return m_text[m_next]; }
    wchar_t Take();
    void SkipBlanks();
    void SkipComment();
    CValue ReadExpression(int depth);
    CValue ReadList(SPosition start, int depth);
    CValue ReadTail(SPosition dot, int depth);
    CValue ReadString(SPosition start);
    std::wstring_view TakeWord();
    CValue ReadWord(SPosition start);
    [[noreturn]] static void Fail(SPosition position, const std::wstring& what);

    std::wstring_view m_text;
    std::size_t m_next = 0;
    SPosition m_position;
    std::vector<SPlace> m_textPlaces;
};

// Whether `name` reads as a symbol other than T and nil, so that it can name a function or a variable.
bool IsSymbolName(std::wstring_view name);
