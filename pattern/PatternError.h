// The results of CPatternMatcher::Parse.
#pragma once

namespace tavrin::pattern {

enum EPatternError : unsigned {
    PE_NONE = 0,
    PE_NO_MEMORY = 1,             // out of memory
    PE_BRACE_EXPECTED = 2,        // a capturing group is not closed
    PE_PARENTHESIS_EXPECTED = 3,  // a "(" is not closed
    PE_BRACKET_EXPECTED = 4,      // a set is not closed, or a range has no upper bound
    PE_BAD_ABBREVIATION = 5,      // the expansion of an abbreviation could not be parsed
    PE_EMPTY_SET = 6,             // "[]" or "[^]"
    PE_BAD_REFERENCE = 7,         // a back-reference to a group that is not opened yet
    PE_REVERSED_RANGE = 8,        // a range whose upper bound is below its lower bound
    PE_EMPTY_REPETITION = 9,      // an unbounded repetition of what can match the empty text
    PE_NULL_PATTERN = 10          // the pattern is null
};

}  // namespace tavrin::pattern
