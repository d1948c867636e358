// The calls of the module's functions that a LISP routine holds, as far as they are written out in it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "LispError.h"

struct SRoutineCall {
    bool isChoice = false;            // tavrinselmask; else tavrinprevmask
    bool isFlatOnly = false;          // the choice's second argument is a number other than 0
    int line = 0;                     // where the call begins, from 1
    std::vector<std::wstring> names;  // of pictures or choices: the arguments that are texts
};

// The calls of tavrinselmask and tavrinprevmask, anywhere in the routine, in the order in
// which they begin. Throws CLispError when its text
// cannot be read.
std::vector<SRoutineCall> FindRoutineCalls(std::wstring_view routine);
