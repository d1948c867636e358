// The compiled form of a pattern: a flat array of instructions. It knows nothing of the pattern's text, and
// case is already settled in it: a literal holds both forms of its letter and a set both cases of each
// member, so that the search never touches a lower-cased copy of its input.
//
// Addresses are indices into the array. The first instruction has address 0, the last one is EOp::Match.
#pragma once

#include <cstdint>
#include <vector>

#include "itemdlg/CharacterSet.h"

enum class EOp : std::uint8_t {
    Nothing,         // stands for no instruction; none is left in a finished program
    Character,       // one character, `first` or `second`
    CharacterRange,  // one character from `first` to `second`
    CharacterSet,    // one character of set `operand`
    AnyCharacter,    // any one character
    SpanCharacter,   // as many characters as come: of those that Character would consume,
    SpanRange,       // that CharacterRange would,
    SpanSet,         // that CharacterSet would,
    SpanRest,        // or any, up to the end of the input
    Run,             // the next instruction, one of the first four above, repeated; the most times first
    LazyRun,         // the same, the fewest times first
    EndOfInput,      // the end of the input, consuming nothing
    GroupOpen,       // capturing group `operand` begins
    GroupClose,      // capturing group `operand` ends and holds what was consumed since it began
    BackReference,   // the text that group `operand` captured when it ended last
    NextFirst,       // go on with the next instruction; when that fails, with `operand`
    OperandFirst,    // go on with `operand`; when that fails, with the next instruction
    Jump,            // go on with `operand`
    Look,            // negative look-ahead: if what follows, up to LookHit, fails, go on with `operand`
    LookHit,         // what the innermost open look-ahead forbids has matched
    Match            // the whole pattern has matched
};

inline bool ConsumesOne(EOp op) {
    return op >= EOp::Character && op <= EOp::AnyCharacter;
}
inline bool IsSpan(EOp op) {
    return op >= EOp::SpanCharacter && op <= EOp::SpanRest;
}
inline bool IsRun(EOp op) {
    return op == EOp::Run || op == EOp::LazyRun;
}
inline bool HasAddress(EOp op) {
    return op >= EOp::NextFirst && op <= EOp::Look;
}

// What is known of the characters that can stand right behind a run.
enum class EFollow : std::uint8_t {
    Anything,  // nothing: every length of the run has to be tried
    Literal    // `first` or `second` of the run's instruction, then what preview `operand` tells
};

struct Instruction {
    EOp op = EOp::Nothing;
    EFollow follow = EFollow::Anything;  // runs
    bool atLeastOne = false;             // runs: "+" rather than "*" or "?"
    bool atMostOne = false;              // runs: "?" rather than "*" or "+"
    std::uint32_t operand = 0;           // an address, a group, a set or a preview; see EOp and EFollow
    wchar_t first = 0;
    wchar_t second = 0;  // Character: the other case of `first`, or `first` again
};

// The characters that can stand at one place, or more than these: those beyond the first 256 are not told
// apart. The null character stands for the end of the input.
struct PossibleCharacters {
    CCharacterSet::LowSet low;
    bool high = false;

    bool Contain(wchar_t character) const {
        const auto code = static_cast<std::uint32_t>(character);
        return code < CCharacterSet::kLowCount ? low[code] : high;
    }
};

// What can stand behind the literal that follows a run. A line full of that literal would otherwise send the
// search into the rest of the pattern at every one of them.
struct RunPreview {
    PossibleCharacters second;
    PossibleCharacters third;
};

struct PatternProgram {
    std::vector<Instruction> code;
    std::vector<CCharacterSet> sets;
    std::vector<RunPreview> previews;
    std::uint32_t groupCount = 0;
    bool anchored = false;       // matches at the start of the input alone
    bool caseSensitive = false;  // left for the back-references, which compare input with input
};

// Takes the instructions EOp::Nothing out of a program and moves its addresses accordingly.
void RemoveNothings(PatternProgram& program);
