// Runs a compiled pattern against one input: the backtracking search.
//
// It never looks behind the null that ends the input. No literal and no set of a program contains the null
// character, so that consuming one of them fails there by itself.
#pragma once

#include <cstddef>

#include "itemdlg/BacktrackStack.h"
#include "itemdlg/MatchContext.h"
#include "itemdlg/PatternProgram.h"

class CPatternSearch {
public:
    // `inputEnd` is where the input's terminating null stands, or null when that is not known yet. `groups`
    // has one capture for each capturing group of the program. All must outlive the search.
    CPatternSearch(const PatternProgram& program, const wchar_t* inputEnd, CMatchContext::Capture* groups)
        : m_program(program),
          m_code(program.code.data()),
          m_sets(program.sets.data()),
          m_inputEnd(inputEnd),
          m_groups(groups) {}

    // The end of the first match that begins exactly at `start`, with the groups filled; null, with the
    // groups in no defined state, when there is none. The groups must be all null or left so by a search
    // before. Throws std::bad_alloc when the stack cannot grow.
    const wchar_t* MatchAt(const wchar_t* start);

    // The work done so far: see CMatchContext::Steps.
    std::size_t Steps() const { return m_steps; }

private:
    // Where to go on; `at` is null when there is nowhere.
    struct State {
        const Instruction* at;
        const wchar_t* place;
    };

    State BackOut();
    void LeaveLook();
    void CloseGroup(CMatchContext::Capture& group, std::uint32_t index, const wchar_t* place);
    void RestoreGroup(const BacktrackEntry& entry);
    const wchar_t* MatchReference(const Instruction& reference, const wchar_t* place) const;

    // Each answers the place where the search goes on behind the run; null when there is none.
    const wchar_t* StartRun(const Instruction& run, const wchar_t* place);
    const wchar_t* StartLazyRun(const Instruction& run, const wchar_t* place);
    const wchar_t* GiveBack(BacktrackEntry& entry);
    const wchar_t* TakeMore(BacktrackEntry& entry);

    const wchar_t* RunEnd(const Instruction& consumer, const wchar_t* place);
    const wchar_t* FindLastFollow(const Instruction& run, const wchar_t* first, const wchar_t* last);
    bool CanFollow(const Instruction& run, const wchar_t* place) const;
    bool Accepts(const Instruction& consumer, wchar_t character) const;
    std::uint32_t AddressOf(const Instruction* instruction) const {
        return static_cast<std::uint32_t>(instruction - m_code);
    }

    const PatternProgram& m_program;
    const Instruction* m_code;
    const CCharacterSet* m_sets;
    const wchar_t* m_inputEnd;
    CMatchContext::Capture* m_groups;
    std::size_t m_steps = 0;
    CBacktrackStack m_stack;
};
