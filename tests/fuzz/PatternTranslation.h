// Our pattern language in PCRE2's: an independent reading of the pattern, by recursive descent, for an
// independent engine to run.
#pragma once

#include <string>

struct PatternTranslation {
    unsigned error = 0;      // as CPatternMatcher::Parse numbers them
    std::u16string pattern;  // every character of it written by its number, "^" left out
    unsigned groupCount = 0;
    bool anchored = false;
};

// A pattern that is to be matched without regard to case must come lower-cased: `lower` is how, and so must
// the input.
PatternTranslation TranslatePattern(const std::wstring& pattern);

// Lower case as the language means it: ASCII and Latin-1, one character to one character.
std::wstring LowerCase(std::wstring text);
