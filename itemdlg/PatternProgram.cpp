// Work on compiled programs.
#include "itemdlg/PatternProgram.h"

#include <cstddef>

void RemoveNothings(PatternProgram& program) {
    std::vector<Instruction>& code = program.code;
    std::vector<std::uint32_t> moved;
    moved.reserve(code.size());
    std::uint32_t kept = 0;
    for (const Instruction& instruction : code) {
        moved.push_back(kept);
        kept += instruction.op == EOp::Nothing ? 0 : 1;
    }
    for (std::size_t old = 0; old < code.size(); ++old) {
        Instruction instruction = code[old];
        if (HasAddress(instruction.op)) {
            instruction.operand = moved[instruction.operand];
        }
        if (instruction.op != EOp::Nothing) {
            code[moved[old]] = instruction;
        }
    }
    code.resize(kept);
}
