// Reads LISP text into values, one expression at a time.
//
// Lists in parentheses, 'x for (quote x), dotted pairs (a . b), texts in double quotes with the escapes
// \" \\ \n \r \t, whole numbers, reals (1.0, .5, 1e3), symbols; blanks separate them. A semicolon begins a
// comment that ends with the line; a comment between ;| and |; may span lines.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "lisp/LispError.h"
#include "lisp/Value.h"

namespace tavrin::lisp {

class CReader {
public:
    // The text must outlive the reader. `file` is that of the lists' lines.
    explicit CReader(std::wstring_view text, int file = 0) : m_text(text), m_file(file) {}

    // The next expression, whose lists know their lines; nothing when only blanks and comments are left.
    // Throws CReadError for unbalanced parentheses, quotes or comments, an unknown escape, a misplaced dot, a
    // number out of range, and expressions nested more than a thousand deep.
    std::optional<CValue> Read();

    // The ranges of the texts that were read, with their quotes, in characters from 0, in source order.
    struct TextRange {
        std::size_t start = 0;
        std::size_t length = 0;
    };
    const std::vector<TextRange>& TextRanges() const { return m_textRanges; }

private:
    struct Position {
        int line = 1;
        int column = 1;
    };

    bool AtEnd() const { return m_next == m_text.size(); }
    wchar_t Peek() const { return m_text[m_next]; }
    wchar_t Take();
    void SkipBlanks();
    void SkipComment();
    CValue ReadExpression(int depth);
    CValue ReadList(Position start, int depth);
    CValue ReadTail(Position dot, int depth);
    CValue ReadString(Position start);
    std::wstring_view TakeWord();
    CValue ReadWord(Position start);
    [[noreturn]] static void Fail(Position position, const std::wstring& what);
    // The same where the text ends within the expression.
    [[noreturn]] static void FailUnfinished(Position position, const std::wstring& what);

    std::wstring_view m_text;
    int m_file;
    std::size_t m_next = 0;
    Position m_position;
    std::vector<TextRange> m_textRanges;
};

// Whether `name` reads as a symbol other than T and nil, so that it can name a function or a variable.
bool IsSymbolName(std::wstring_view name);

}  // namespace tavrin::lisp
