// The calls of the module's functions in a LISP routine.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "lisp/LispError.h"

namespace tavrin::tools {

// A name that is a literal text in a call, and its range with the quotes, in characters.
struct RoutineName {
    std::wstring text;
    std::size_t start = 0;
    std::size_t length = 0;
};

struct RoutineCall {
    bool isChoice = false;           // tavrinselmask; else tavrinprevmask
    bool isFlatOnly = false;         // the choice's second argument is a number other than 0
    std::vector<RoutineName> names;  // of pictures or choices: the literal texts
};

// The calls of tavrinselmask and tavrinprevmask, anywhere in the routine. Throws CLispError when its text
// cannot be read.
std::vector<RoutineCall> FindRoutineCalls(std::wstring_view routine);

}  // namespace tavrin::tools
