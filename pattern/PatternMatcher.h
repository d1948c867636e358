// A small regular-expression matcher for lines of single-byte text files, held as wide null-terminated text.
// A pattern is compiled once with Parse and then run against any number of inputs with Match.
//
// THE PATTERN LANGUAGE. Any character that is not named here matches itself.
//
//   .          any one character (never the end of the input)
//   [abc0-9]   one character of a set. "[^...]" is the complement. Inside, "\t" is the tab and a backslash
//              before any other character makes that character a member. The upper bound of a range is
//              taken as it stands: "[A-\]" runs from A to the backslash.
//   {...}      a capturing group; groups are numbered from 0 in the order of their opening braces
//   (...)      a group that captures nothing
//   \N         a back-reference: the text that group N captured, under the pattern's case rule. N is read
//              greedily and must be below the number of groups opened so far. A group that captured nothing
//              matches the empty text. Inside its own group it matches what the group captured in the round
//              before, if the group is repeated.
//   \a \b \c \d \h \n \q \w \z
//              abbreviations: letter or digit, blank or tab, letter, digit, hexadecimal digit, line break,
//              text in double quotes, word of letters, run of digits. In a case-insensitive pattern the
//              capitals stand for the same ("\D" is a digit there).
//   \x         any other character x after a backslash is x. A backslash that ends the pattern is itself.
//   !X         succeeds, consuming nothing, exactly when the atom X does not match here
//   X* X+ X?   greedy repetitions; "X*?", "X+?" and "X??" try the fewest repetitions first
//   X|Y        alternation between the two single, possibly quantified, elements beside the bar
//   ^          as the first character of the pattern: only the start of the input
//   $          as the last character of the pattern: the end of the input
//
// What differs from other matchers:
//
//   "ab|cd"    is a, then b or c, then d: it matches "abd" and "acd", neither "ab" nor "cd". Chains group
//              to the right, the left side is tried first.
//   "abc)def"  a closing "}", "]" or ")" without partner ends the pattern without an error: this is "abc".
//   "a**"      a quantifier or a bar where an element must begin is a literal: this is "a*", then a star.
//   "!a*"      the quantifier belongs to the look-ahead, not to the a.
//   "a|", "!"  an operand that is missing at the end of the pattern or before a closer is the empty text.
//   "\q*"      a quantifier after an abbreviation applies to all of it; "\w+" is a repetition of words.
//   "x*$"      does not match "ab": the position after the last character is tried only in an empty input.
//   "(a*)*"    is an error: what can match the empty text cannot be repeated without bound. Look-aheads and
//              back-references always count as able to match it.
//
// MATCHING is a backtracking search from each start position in turn; the first path that reaches the end of
// the pattern wins. After a match each group reports the capture of that path: its last one if the group is
// repeated. What is captured inside a look-ahead is never reported, since a look-ahead succeeds only by
// failing inside.
//
// CASE. A case-insensitive pattern behaves as if pattern and input were lower-cased first, character for
// character and in no locale (see LetterCase.h); captured text keeps the case that it has in the input.
//
// MEMORY. The depth of the call stack does not depend on pattern or input: compiler and search keep stacks of
// their own, which grow by doubling. Nothing after the input's terminating null is read. A greedy repetition
// of one character, set or "." takes one entry of the search's stack, however long it is, and ends only where
// the literal after it, if there is one, can match.
#pragma once

#include "pattern/MatchContext.h"
#include "pattern/PatternError.h"
#include "pattern/PatternProgram.h"

namespace tavrin::pattern {

class CPatternMatcher {
public:
    // Compiles a pattern, replacing the previous one. Returns an EPatternError, PE_NONE on success.
    unsigned Parse(const wchar_t* pattern, bool caseSensitive);

    // Searches the input for the pattern and fills the context. False if input or context is null, if nothing
    // matches, if no pattern was parsed successfully, or out of memory, which leaves the context without
    // groups; all pairs of the context are then null. The pattern is only read and may be shared; the context
    // may not.
    //
    // endOut may be null. Otherwise it receives the position in the input where matching stopped: the end of
    // the match, or after a failure the start position that was tried last. It is left alone if input or
    // context is null, if there is no pattern, and out of memory.
    bool Match(const wchar_t* input, CMatchContext* context, const wchar_t** endOut = nullptr) const;

    // The result of the last Parse.
    unsigned LastError() const { return m_error; }

    // The number of capturing groups of the pattern.
    unsigned GroupCount() const { return m_program.groupCount; }

private:
    PatternProgram m_program;  // without instructions unless the last Parse succeeded
    unsigned m_error = PE_NONE;
};

}  // namespace tavrin::pattern
