// What the search need not do.
#include "itemdlg/PatternTuning.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

void Add(PossibleCharacters& characters, wchar_t character) {
    const auto code = static_cast<std::uint32_t>(character);
    if (code < CCharacterSet::kLowCount) {
        characters.low.set(code);
    } else {
        characters.high = true;
    }
}

void AddAll(PossibleCharacters& characters) {
    characters.low.set();
    characters.high = true;
}

// All that an instruction can consume, one at a time.
void Add(PossibleCharacters& characters, const PatternProgram& program, const Instruction& consumer) {
    if (consumer.op == EOp::Character || consumer.op == EOp::SpanCharacter) {
        Add(characters, consumer.first);
        Add(characters, consumer.second);
    } else if (consumer.op == EOp::CharacterRange || consumer.op == EOp::SpanRange) {
        CCharacterSet range;
        range.Add(consumer.first, consumer.second);
        characters.low |= range.Low();
        characters.high = characters.high || range.HasHigh();
    } else if (consumer.op == EOp::CharacterSet || consumer.op == EOp::SpanSet) {
        characters.low |= program.sets[consumer.operand].Low();
        characters.high = characters.high || program.sets[consumer.operand].HasHigh();
    } else {
        const bool end = characters.low[0];
        AddAll(characters);
        characters.low[0] = end;
    }
}

bool Meet(const PossibleCharacters& one, const PossibleCharacters& other) {
    return (one.low & other.low).any() || (one.high && other.high);
}

// Walks through a program character by character, along all its paths at once, and collects what each
// character can be. It gives up, and then calls everything possible, where the paths become too many: enough
// for the patterns that people write, and long patterns stay linear to compile.
class CForwardWalk {
public:
    CForwardWalk(const PatternProgram& program, std::uint32_t start) : m_program(program) {
        m_starts[m_startCount++] = start;
    }

    // Goes on over one character and answers what it can be.
    PossibleCharacters Next() {
        m_characters = {};
        m_consumerCount = 0;
        m_pending = m_starts;
        m_pendingCount = m_startCount;
        m_startCount = 0;
        for (std::size_t visited = 0; m_pendingCount > 0 && !m_lost; ++visited) {
            m_lost = visited == kMostVisited || !Visit(m_pending[--m_pendingCount]);
        }
        if (m_lost) {
            AddAll(m_characters);
        }
        return m_characters;
    }

    // The literal that alone can stand there, null if there is no such; valid until the next Next.
    const Instruction* OnlyLiteral() const {
        const bool only = !m_lost && m_consumerCount == 1 && !m_characters.low[0];
        return only && m_consumer->op == EOp::Character ? m_consumer : nullptr;
    }

private:
    static constexpr std::size_t kMostVisited = 16;
    // Each visit takes one address off and adds at most two, here or among the next starts.
    using Addresses = std::array<std::uint32_t, 3 * kMostVisited + 1>;

    // Follows one instruction to what comes behind it; false when that can be anything.
    bool Visit(std::uint32_t address) {
        const Instruction& instruction = m_program.code[address];
        switch (instruction.op) {
            case EOp::Character:
            case EOp::CharacterRange:
            case EOp::CharacterSet:
            case EOp::AnyCharacter:
                Consume(instruction);
                m_starts[m_startCount++] = address + 1;
                return true;
            case EOp::SpanCharacter:
            case EOp::SpanRange:
            case EOp::SpanSet:
            case EOp::SpanRest:
                Consume(instruction);
                m_starts[m_startCount++] = address;
                m_pending[m_pendingCount++] = address + 1;
                return true;
            case EOp::Run:
            case EOp::LazyRun:
                Consume(m_program.code[address + 1]);
                m_starts[m_startCount++] = address + 2;
                if (!instruction.atMostOne) {
                    m_starts[m_startCount++] = address;
                }
                if (!instruction.atLeastOne) {
                    m_pending[m_pendingCount++] = address + 2;
                }
                return true;
            case EOp::GroupOpen:
            case EOp::GroupClose:
                m_pending[m_pendingCount++] = address + 1;
                return true;
            case EOp::NextFirst:
            case EOp::OperandFirst:
                m_pending[m_pendingCount++] = address + 1;
                m_pending[m_pendingCount++] = instruction.operand;
                return true;
            case EOp::Jump:
            case EOp::Look:  // it only forbids: what counts is what lies behind it
                m_pending[m_pendingCount++] = instruction.operand;
                return true;
            case EOp::EndOfInput:
                Add(m_characters, L'\0');
                return true;
            case EOp::Nothing:
                m_pending[m_pendingCount++] = address + 1;
                return true;
            case EOp::BackReference:
            case EOp::LookHit:
            case EOp::Match:
                break;
        }
        return false;
    }

    void Consume(const Instruction& consumer) {
        Add(m_characters, m_program, consumer);
        m_consumer = &consumer;
        ++m_consumerCount;
    }

    const PatternProgram& m_program;
    PossibleCharacters m_characters;
    const Instruction* m_consumer = nullptr;
    std::size_t m_consumerCount = 0;
    Addresses m_starts{};
    std::size_t m_startCount = 0;
    Addresses m_pending{};
    std::size_t m_pendingCount = 0;
    bool m_lost = false;
};

EOp SpanOf(EOp consumer) {
    switch (consumer) {
        case EOp::Character:
            return EOp::SpanCharacter;
        case EOp::CharacterRange:
            return EOp::SpanRange;
        case EOp::CharacterSet:
            return EOp::SpanSet;
        default:
            return EOp::SpanRest;
    }
}

void TuneRun(PatternProgram& program, std::uint32_t address) {
    Instruction& run = program.code[address];
    Instruction& consumer = program.code[address + 1];
    CForwardWalk walk(program, address + 2);
    const PossibleCharacters next = walk.Next();
    PossibleCharacters own;
    Add(own, program, consumer);
    if (!run.atMostOne && !Meet(own, next)) {
        // Wherever the run could stop short, a character of its own comes next, which cannot go on with the
        // rest. So even a lazy run has only one length to offer: its greatest.
        run = run.atLeastOne ? consumer : Instruction();
        consumer.op = SpanOf(consumer.op);
    } else if (const Instruction* literal = walk.OnlyLiteral()) {
        run.follow = EFollow::Literal;
        run.first = literal->first;
        run.second = literal->second;
        run.operand = static_cast<std::uint32_t>(program.previews.size());
        const PossibleCharacters second = walk.Next();
        program.previews.push_back({second, walk.Next()});
    }
}

}  // namespace

void TunePattern(PatternProgram& program) {
    for (std::uint32_t address = 0; address < program.code.size(); ++address) {
        if (IsRun(program.code[address].op)) {
            TuneRun(program, address);
        }
    }
    RemoveNothings(program);
}
