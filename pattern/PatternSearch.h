// Runs a compiled pattern against one input: a backtracking search with a stack of its own. The beginning of
// the stack is in the object itself, so that a usual line needs no memory from the heap.
#pragma once

#include <string_view>

#include "pattern/MatchContext.h"
#include "pattern/PatternProgram.h"

namespace tavrin::pattern {

// Searches an input, which a null character must follow, for a pattern. The result is the first match, with
// the groups filled. If there is none, its end is null, its start is the start position that was tried last,
// and all groups are null. The groups must be null before, one for each capturing group of the program.
// Throws std::bad_alloc or std::length_error if the stack cannot grow.
CMatchContext::Pair SearchPattern(const PatternProgram& program, std::wstring_view input,
                                  CMatchContext::Groups& groups);

}  // namespace tavrin::pattern
