// What a LISP routine says of pictures, choices and texts.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "lisp/LispError.h"

namespace tavrin::tools {

// A name that is a literal text in a call, and the text's range with the quotes, in characters.
struct RoutineName {
    std::wstring text;
    std::size_t start = 0;
    std::size_t length = 0;
};

struct RoutineCall {
    bool isChoice = false;           // tavrinselmask or item-choose; else tavrinprevmask
    bool isFlatOnly = false;         // the choice's second argument is a number other than 0
    std::vector<RoutineName> names;  // of pictures or choices: the literal texts
};

struct RoutineContents {
    // The calls of tavrinselmask, tavrinprevmask and the samples' (item-choose ITEM VARIANTS), anywhere in
    // the routine. VARIANTS is a list of literal texts, or a variable that setq gives such a list.
    std::vector<RoutineCall> calls;
    std::vector<unsigned> textNumbers;  // N of (res-text N) and of the samples' (item-words N ...)
    std::vector<std::wstring> loads;    // the literal texts of (load NAME)
};

// Throws CReadError when the routine cannot be read.
RoutineContents ReadRoutine(std::wstring_view routine);

}  // namespace tavrin::tools
