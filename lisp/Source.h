// LISP text as expressions. All of it is read before any of it is evaluated.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lisp/Value.h"

namespace tavrin::lisp {

struct Source {
    std::wstring file;  // as errors name it; empty for typed text
    std::vector<CValue> expressions;
};

// Throws CReadError.
Source ReadText(std::wstring_view text);

// The name of a file whose number the lists that were read from it have.
const std::wstring& SourceFileName(int number);

// Whether the text ends within an expression, such as a list without its closing parenthesis.
bool IsUnfinished(std::wstring_view text);

// The file at `path`; errors call it `name`. Throws CLispError when it cannot be opened or read.
Source ReadSourceFile(const std::wstring& path, const std::wstring& name);

}  // namespace tavrin::lisp
