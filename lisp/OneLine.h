// LISP of several lines as one line, for the prompt.
#pragma once

#include <string>
#include <string_view>

namespace tavrin::lisp {

// Removes comments, and blanks and line ends around the text; other line ends become blanks, and inside of
// texts their escapes. Incomplete LISP is accepted too.
std::wstring OnOneLine(std::wstring_view lisp);

}  // namespace tavrin::lisp
