// LISP text as expressions, read as a whole before any of it is evaluated.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lisp/Value.h"

struct SSource {
    std::wstring file;  // as errors name it; empty for typed text
    std::vector<CValue> expressions;
};

// Throws CReadError.
SSource ReadText(std::wstring_view text);

// The file at `path`, which errors call `name`. Throws CLispError, which names the file, when it cannot be
// opened or read.
SSource ReadSourceFile(const std::wstring& path, const std::wstring& name);
