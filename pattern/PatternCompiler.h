// Compiles the text of a pattern into a PatternProgram in one pass from left to right.
//
// Nesting is kept on a stack of frames, not on the call stack, so that a pattern may open a million groups.
// The quantifier and the bar after an element need instructions in front of it: two slots are reserved for
// them in front of each element and removed at the end where they stayed empty.
#pragma once

#include <cstdint>
#include <vector>

#include "pattern/PatternError.h"
#include "pattern/PatternProgram.h"

namespace tavrin::pattern {

class CPatternCompiler {
public:
    // The pattern must outlive the compiler; the program must be empty.
    CPatternCompiler(const wchar_t* pattern, bool caseSensitive, PatternProgram& program);

    // Fills the program; after an error its content means nothing. Throws std::bad_alloc or std::length_error
    // if the program cannot grow.
    EPatternError Compile();

private:
    using Address = std::uint32_t;
    static constexpr Address kNone = 0xFFFFFFFF;
    static constexpr Address kSlots = 2;  // in front of each element: for an alternation, for a quantifier

    enum EFrame : std::uint8_t { FR_PATTERN, FR_CAPTURE_GROUP, FR_PLAIN_GROUP, FR_EXPANSION };

    // A sequence that is being read, and the state of its current alternation and element.
    struct Frame {
        EFrame kind = FR_PATTERN;
        bool sequenceEmpty = true;   // the sequence so far can match the empty text
        bool chainEmpty = false;     // an earlier alternative of this chain can
        bool operandDue = false;     // a bar or an exclamation mark waits for what it applies to
        std::uint32_t group = 0;     // FR_CAPTURE_GROUP: its number
        Address slots = kNone;       // of the current element
        Address lookaheads = kNone;  // the innermost look-ahead that waits for its atom; they are linked
        Address chainJumps = kNone;  // the last jump to the end of the alternation; they are linked
    };

    static constexpr wchar_t kNoQuantifier = L'\0';

    struct Quantifier {
        wchar_t sign = kNoQuantifier;  // or "*", "+" or "?"
        bool lazy = false;
    };

    // Each reads or completes one thing and leaves the rest to the next round of Compile's loop.
    EPatternError ReadAtom();
    EPatternError ReadEscape();
    EPatternError ReadBackReference();
    EPatternError ReadSet();
    EPatternError ReadRange(wchar_t& first, wchar_t& last);
    bool ReadSetCharacter(wchar_t& character);
    Quantifier ReadQuantifier();
    EPatternError CompleteAtom();
    void CompleteElement(bool canBeEmpty);
    EPatternError CloseFrame(wchar_t closer);

    void OpenFrame(EFrame kind);
    void ReserveSlots();
    void AtomRead(bool canBeEmpty);
    void EndLookaheads();
    bool FoldIntoRun(const Quantifier& quantifier);
    void Quantify(const Quantifier& quantifier);
    void RemoveNops();
    void FindFollowingLiterals();

    Address Emit(EOp op, Address operand = 0);
    void EmitSimpleAtom(wchar_t character);
    void EmitLiteral(wchar_t character);
    Address Here() const { return static_cast<Address>(m_program.code.size()); }

    wchar_t Peek() const;
    void Advance() { ++m_position; }
    bool TakeIf(wchar_t character);

    const wchar_t* m_position;          // the next character of the pattern, or of an expansion
    const wchar_t* m_resume = nullptr;  // inside an expansion: where the pattern goes on
    PatternProgram& m_program;
    std::vector<Frame> m_frames;
    bool m_atomRead = false;   // an atom is read whose quantifier has not been looked for yet
    bool m_atomEmpty = false;  // that atom can match the empty text
};

}  // namespace tavrin::pattern
