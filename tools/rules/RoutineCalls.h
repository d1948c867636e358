// The calls of the module's functions that a LISP routine holds, as far as they are written out in it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "lisp/LispError.h"

// A name that stands as a text in a call: what it is, and where it stands with its quotes, in characters.
struct SRoutineName {
    std::wstring text;
    std::size_t start = 0;
    std::size_t length = 0;
};

struct SRoutineCall {
    bool isChoice = false;            // tavrinselmask; else tavrinprevmask
    bool isFlatOnly = false;          // the choice's second argument is a number other than 0
    std::vector<SRoutineName> names;  // of pictures or choices: the arguments that are texts
};

// The calls of tavrinselmask and tavrinprevmask, anywhere in the routine. Throws CLispError when its text
// cannot be read.
std::vector<SRoutineCall> FindRoutineCalls(std::wstring_view routine);
