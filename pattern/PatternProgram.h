// The compiled form of a pattern: a flat array of instructions. Case is already settled in it: a literal
// holds both forms of its letter and a set both cases of each member, so that the search needs no lower-cased
// copy of its input.
//
// Addresses are indices into the array. Execution begins at address 0; the last instruction is EOp::Match.
// No literal and no set contains the null character, so that none of them matches the end of the input.
#pragma once

#include <cstdint>
#include <vector>

#include "pattern/CharacterSet.h"

namespace tavrin::pattern {

enum class EOp : std::uint8_t {
    Nop,                // none is left in a finished program
    Character,          // one character, `first` or `second`
    CharacterSet,       // one character of set `operand`
    AnyCharacter,       // any one character
    Run,                // greedy repetition of the next instruction, one of the three above; the search goes
                        // on behind that one. `operand`: see Instruction
    EndOfInput,         // the end of the input, consuming nothing
    GroupOpen,          // capturing group `operand` begins
    GroupClose,         // capturing group `operand` ends and captures what was consumed since it began
    BackReference,      // the text that group `operand` captured last
    SplitPreferNext,    // go on with the next instruction; if that fails, with `operand`
    SplitPreferTarget,  // go on with `operand`; if that fails, with the next instruction
    Jump,               // go on with `operand`
    NegativeLookahead,  // if what follows, up to LookaheadEnd, fails, go on with `operand`
    LookaheadEnd,       // what the innermost open look-ahead forbids has matched
    Match               // the whole pattern has matched
};

struct Instruction {
    EOp op = EOp::Nop;
    bool atLeastOne = false;    // Run: "+" rather than "*"
    std::uint32_t operand = 0;  // an address, group or set. Run: the address of the literal that always comes
                                // right behind the run, 0 if there is none
    wchar_t first = 0;
    wchar_t second = 0;  // Character: the other case of `first`, or `first` again
};

struct PatternProgram {
    std::vector<Instruction> code;
    std::vector<CCharacterSet> sets;
    std::uint32_t groupCount = 0;
    bool anchored = false;       // matches at the start of the input alone
    bool caseSensitive = false;  // for the back-references, which compare input with input
};

}  // namespace tavrin::pattern
