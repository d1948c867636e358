#include "pattern/PatternSearch.h"

#include <cstdint>

#include "pattern/InlineVector.h"
#include "pattern/LetterCase.h"

namespace tavrin::pattern {

namespace {

bool IsLiteral(const Instruction& literal, wchar_t character) {
    return character == literal.first || character == literal.second;
}

class CPatternSearch {
public:
    CPatternSearch(const PatternProgram& program, std::wstring_view input, CMatchContext::Groups& groups)
        : m_program(program),
          m_code(program.code.data()),
          m_inputEnd(input.data() + input.size()),
          m_groups(groups) {
        m_groupStarts.Assign(program.groupCount, nullptr);
    }

    // The end of the first match that begins exactly at `start`; null, with all groups null, if there is
    // none. After a match the search is over.
    const wchar_t* MatchAt(const wchar_t* start);

private:
    struct State {
        const Instruction* next;
        const wchar_t* position;
    };

    enum EKind : std::uint8_t {
        EK_CHOICE,       // go on at instruction `index` from position `first`
        EK_LOOKAHEAD,    // the same: the look-ahead failed inside, which is its success
        EK_GROUP_START,  // group `index` had begun at `first` before
        EK_GROUP,        // group `index` had captured [`first`, `second`) before
        EK_RUN           // the run at `index` may still end in [`first`, `second`), the last position first
    };

    // What backtracking returns to.
    struct Entry {
        EKind kind;
        std::uint32_t index;
        const wchar_t* first;
        const wchar_t* second;
    };

    bool Execute(State& state);
    bool Backtrack(State& state);
    void Push(EKind kind, std::uint32_t index, const wchar_t* first, const wchar_t* second = nullptr) {
        m_stack.PushBack({kind, index, first, second});
    }
    bool Accepts(const Instruction& consumer, wchar_t character) const;
    const wchar_t* RunEnd(const Instruction& body, const wchar_t* position) const;
    bool ShortenRun(State& state);
    void CloseGroup(std::uint32_t index, const wchar_t* position);
    void RestoreGroup(const Entry& entry);
    void LeaveLookahead();
    bool MatchReference(std::uint32_t index, const wchar_t*& position) const;

    static constexpr std::size_t kInlineEntries = 64;

    const PatternProgram& m_program;
    const Instruction* m_code;
    const wchar_t* m_inputEnd;
    CMatchContext::Groups& m_groups;
    CInlineVector<const wchar_t*, CMatchContext::kInlineGroups> m_groupStarts;  // where each group began last
    CInlineVector<Entry, kInlineEntries> m_stack;
};

const wchar_t* CPatternSearch::MatchAt(const wchar_t* start) {
    State state{m_code, start};
    while (state.next->op != OP_MATCH) {
        if (!Execute(state) && !Backtrack(state)) {
            return nullptr;
        }
    }
    return state.position;
}

// False if the instruction does not match at the position.
bool CPatternSearch::Execute(State& state) {
    const Instruction& instruction = *state.next++;
    const std::uint32_t operand = instruction.operand;
    const wchar_t*& position = state.position;
    switch (instruction.op) {
        case OP_CHARACTER:
        case OP_CHARACTER_SET:
        case OP_ANY_CHARACTER:
            return Accepts(instruction, *position++);
        case OP_RUN:
            Push(EK_RUN, static_cast<std::uint32_t>(&instruction - m_code),
                 position + (instruction.atLeastOne ? 1 : 0), RunEnd(*state.next, position) + 1);
            return false;  // backtracking takes the run's first choice as it takes the others
        case OP_END_OF_INPUT:
            return *position == L'\0';
        case OP_GROUP_OPEN:
            Push(EK_GROUP_START, operand, m_groupStarts[operand]);
            m_groupStarts[operand] = position;
            return true;
        case OP_GROUP_CLOSE:
            CloseGroup(operand, position);
            return true;
        case OP_BACK_REFERENCE:
            return MatchReference(operand, position);
        case OP_SPLIT_PREFER_NEXT:
            Push(EK_CHOICE, operand, position);
            return true;
        case OP_SPLIT_PREFER_TARGET:
            Push(EK_CHOICE, static_cast<std::uint32_t>(state.next - m_code), position);
            state.next = m_code + operand;
            return true;
        case OP_JUMP:
            state.next = m_code + operand;
            return true;
        case OP_NEGATIVE_LOOKAHEAD:
            Push(EK_LOOKAHEAD, operand, position);
            return true;
        case OP_LOOKAHEAD_END:
            LeaveLookahead();
            return false;
        case OP_NOP:
        case OP_MATCH:
            break;
    }
    return true;
}

// Goes back to the latest choice that is still open; false if there is none.
bool CPatternSearch::Backtrack(State& state) {
    while (m_stack.Size() > 0) {
        const Entry& entry = m_stack.Back();
        switch (entry.kind) {
            case EK_CHOICE:
            case EK_LOOKAHEAD:
                state = {m_code + entry.index, entry.first};
                m_stack.PopBack();
                return true;
            case EK_GROUP_START:
            case EK_GROUP:
                RestoreGroup(entry);
                m_stack.PopBack();
                break;
            case EK_RUN:
                if (ShortenRun(state)) {
                    return true;
                }
                break;
        }
    }
    return false;
}

bool CPatternSearch::Accepts(const Instruction& consumer, wchar_t character) const {
    switch (consumer.op) {
        case OP_CHARACTER:
            return IsLiteral(consumer, character);
        case OP_CHARACTER_SET:
            return m_program.sets[consumer.operand].Contains(character);
        default:
            return character != L'\0';
    }
}

// The first position from here on whose character the body of a run does not accept.
const wchar_t* CPatternSearch::RunEnd(const Instruction& body, const wchar_t* position) const {
    if (body.op == OP_ANY_CHARACTER) {
        return m_inputEnd;
    }
    while (Accepts(body, *position)) {
        ++position;
    }
    return position;
}

// The topmost entry is a run: ends it at the last position not tried yet where the literal after it, if
// there is one, can match. False, with the entry gone, if there is no such position.
bool CPatternSearch::ShortenRun(State& state) {
    Entry& entry = m_stack.Back();
    const Instruction& run = m_code[entry.index];
    const wchar_t* end = entry.second;
    if (run.operand != 0) {
        const Instruction& literal = m_code[run.operand];
        while (end != entry.first && !IsLiteral(literal, end[-1])) {
            --end;
        }
    }
    const bool found = end != entry.first;
    if (found) {
        entry.second = --end;
        state = {&run + 2, end};
    }
    if (end == entry.first) {
        m_stack.PopBack();
    }
    return found;
}

// Until here the group has held its capture of the round before, which a back-reference inside it matches.
void CPatternSearch::CloseGroup(std::uint32_t index, const wchar_t* position) {
    Push(EK_GROUP, index, m_groups[index].start, m_groups[index].end);
    m_groups[index] = {m_groupStarts[index], position};
}

void CPatternSearch::RestoreGroup(const Entry& entry) {
    if (entry.kind == EK_GROUP_START) {
        m_groupStarts[entry.index] = entry.first;
    } else if (entry.kind == EK_GROUP) {
        m_groups[entry.index] = {entry.first, entry.second};
    }
}

// Drops the choices made since the innermost look-ahead began, and takes its captures back. Look-aheads that
// began later are over, so the topmost entry of that kind is the one.
void CPatternSearch::LeaveLookahead() {
    for (bool left = false; !left; m_stack.PopBack()) {
        RestoreGroup(m_stack.Back());
        left = m_stack.Back().kind == EK_LOOKAHEAD;
    }
}

bool CPatternSearch::MatchReference(std::uint32_t index, const wchar_t*& position) const {
    const CMatchContext::Pair& group = m_groups[index];
    for (const wchar_t* captured = group.start; captured != group.end; ++captured, ++position) {
        const bool same =
            m_program.caseSensitive ? *captured == *position : LowerForm(*captured) == LowerForm(*position);
        if (!same) {
            return false;
        }
    }
    return true;
}

}  // namespace

// The position after the last character is a start position in an empty input only.
CMatchContext::Pair SearchPattern(const PatternProgram& program, std::wstring_view input,
                                  CMatchContext::Groups& groups) {
    CPatternSearch search(program, input, groups);
    const std::size_t starts = program.anchored || input.empty() ? 1 : input.size();
    const wchar_t* const lastStart = input.data() + starts - 1;
    const wchar_t* start = input.data();
    const wchar_t* end = search.MatchAt(start);
    while (end == nullptr && start != lastStart) {
        end = search.MatchAt(++start);
    }
    return {start, end};
}

}  // namespace tavrin::pattern
