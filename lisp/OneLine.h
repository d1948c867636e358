// LISP that spans lines, for a prompt that has one.
#pragma once

#include <string>
#include <string_view>

// The same LISP on one line: comments are left out, line ends become blanks and inside of texts their
// escapes. Without line ends and blanks around it. What is no complete LISP is treated alike.
std::wstring OnOneLine(std::wstring_view lisp);
