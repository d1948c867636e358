// The compiled form of a pattern: a flat array of instructions. Case is already settled in it: a literal
// holds both forms of its letter and a set both cases of each member, so that the search needs no lower-cased
// copy of its input.
//
// Addresses are indices into the array. Execution begins at address 0; the last instruction is OP_MATCH.
// No literal and no set contains the null character, so that none of them matches the end of the input.
#pragma once

#include <cstdint>
#include <vector>

#include "pattern/CharacterSet.h"

namespace tavrin::pattern {

enum EOp : std::uint8_t {
    OP_NOP,                  // none is left in a finished program
    OP_CHARACTER,            // one character, `first` or `second`
    OP_CHARACTER_SET,        // one character of set `operand`
    OP_ANY_CHARACTER,        // any one character
    OP_RUN,                  // greedy repetition of the next instruction, one of the three above, as one step
    OP_END_OF_INPUT,         // the end of the input, consuming nothing
    OP_GROUP_OPEN,           // capturing group `operand` begins
    OP_GROUP_CLOSE,          // capturing group `operand` ends and captures what was consumed since it began
    OP_BACK_REFERENCE,       // the text that group `operand` captured last
    OP_SPLIT_PREFER_NEXT,    // go on with the next instruction; if that fails, with `operand`
    OP_SPLIT_PREFER_TARGET,  // go on with `operand`; if that fails, with the next instruction
    OP_JUMP,                 // go on with `operand`
    OP_NEGATIVE_LOOKAHEAD,   // if what follows, up to OP_LOOKAHEAD_END, fails, go on with `operand`
    OP_LOOKAHEAD_END,        // what the innermost open look-ahead forbids has matched
    OP_MATCH                 // the whole pattern has matched
};

struct Instruction {
    EOp op = OP_NOP;
    bool atLeastOne = false;    // OP_RUN: "+" rather than "*"
    std::uint32_t operand = 0;  // an address, group or set. OP_RUN: the address of the literal that always
                                // comes right after the run, 0 if there is none
    wchar_t first = 0;
    wchar_t second = 0;  // OP_CHARACTER: the other case of `first`, or `first` again
};

struct PatternProgram {
    std::vector<Instruction> code;
    std::vector<CCharacterSet> sets;
    std::uint32_t groupCount = 0;
    bool anchored = false;       // matches at the start of the input alone
    bool caseSensitive = false;  // for the back-references, which compare input with input
};

}  // namespace tavrin::pattern
