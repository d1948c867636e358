#include "pattern/PatternCompiler.h"

#include <array>
#include <utility>

#include "pattern/LetterCase.h"

namespace tavrin::pattern {

namespace {

// The abbreviations: a letter, then its expansion. Only the first element of an expansion is compiled, with
// its quantifier if it has one. So "\q" is text in double quotes alone: what follows the bar is never read.
constexpr std::array<const wchar_t*, 9> kAbbreviations = {L"a([a-zA-Z0-9])",
                                                          L"b([ \\t])",
                                                          L"c([a-zA-Z])",
                                                          L"d([0-9])",
                                                          L"h([0-9a-fA-F])",
                                                          L"n(\r|(\r?\n))",
                                                          L"q(\"[^\"]*\")|('[^']*')",
                                                          L"w([a-zA-Z]+)",
                                                          L"z([0-9]+)"};

const wchar_t* FindExpansion(wchar_t letter) {
    for (const wchar_t* abbreviation : kAbbreviations) {
        if (abbreviation[0] == letter) {
            return abbreviation + 1;
        }
    }
    return nullptr;
}

bool IsCloser(wchar_t character) {
    return character == L'}' || character == L']' || character == L')';
}

bool IsDigit(wchar_t character) {
    return character >= L'0' && character <= L'9';
}

bool ConsumesOne(EOp op) {
    return op >= OP_CHARACTER && op <= OP_ANY_CHARACTER;
}

bool HasAddress(EOp op) {
    return op >= OP_SPLIT_PREFER_NEXT && op <= OP_NEGATIVE_LOOKAHEAD;
}

}  // namespace

CPatternCompiler::CPatternCompiler(const wchar_t* pattern, bool caseSensitive, PatternProgram& program)
    : m_position(pattern), m_program(program) {
    m_program.caseSensitive = caseSensitive;
}

EPatternError CPatternCompiler::Compile() {
    m_frames.emplace_back();
    m_program.anchored = TakeIf(L'^');
    while (!m_frames.empty()) {
        const EPatternError error = m_atomRead ? CompleteAtom() : ReadAtom();
        if (error != PE_NONE) {
            return m_resume != nullptr ? PE_BAD_ABBREVIATION : error;
        }
    }
    Emit(OP_MATCH);
    RemoveNops();
    FindFollowingLiterals();
    return PE_NONE;
}

// A case-insensitive pattern is read as if it had been lower-cased as a whole, sets and escapes included;
// expansions of abbreviations are read as they are.
wchar_t CPatternCompiler::Peek() const {
    const bool asItIs = m_program.caseSensitive || m_resume != nullptr;
    return asItIs ? *m_position : LowerForm(*m_position);
}

bool CPatternCompiler::TakeIf(wchar_t character) {
    const bool found = Peek() == character;
    m_position += found ? 1 : 0;
    return found;
}

EPatternError CPatternCompiler::ReadAtom() {
    const wchar_t character = Peek();
    const bool missing = character == L'\0' || IsCloser(character);
    if (missing && !m_frames.back().operandDue) {
        return CloseFrame(character);
    }
    ReserveSlots();
    if (missing) {
        AtomRead(true);  // the operand of the bar or exclamation mark before is the empty text
        return PE_NONE;
    }
    Advance();
    switch (character) {
        case L'!':
            m_frames.back().lookaheads = Emit(OP_NEGATIVE_LOOKAHEAD, m_frames.back().lookaheads);
            m_frames.back().operandDue = true;
            return PE_NONE;
        case L'{':
            OpenFrame(FR_CAPTURE_GROUP);
            return PE_NONE;
        case L'(':
            OpenFrame(FR_PLAIN_GROUP);
            return PE_NONE;
        case L'[':
            return ReadSet();
        case L'\\':
            return ReadEscape();
        default:
            EmitSimpleAtom(character);
            return PE_NONE;
    }
}

// Quantifiers and bars come here too: where an element begins they are literals.
void CPatternCompiler::EmitSimpleAtom(wchar_t character) {
    if (character == L'.') {
        Emit(OP_ANY_CHARACTER);
        AtomRead(false);
    } else if (character == L'$' && *m_position == L'\0') {
        Emit(OP_END_OF_INPUT);
        AtomRead(true);
    } else {
        EmitLiteral(character);
    }
}

EPatternError CPatternCompiler::ReadEscape() {
    const wchar_t character = Peek();
    if (character == L'\0') {
        EmitLiteral(L'\\');
        return PE_NONE;
    }
    if (IsDigit(character)) {
        return ReadBackReference();
    }
    Advance();
    if (const wchar_t* expansion = FindExpansion(character)) {
        m_resume = m_position;
        m_position = expansion;
        OpenFrame(FR_EXPANSION);
    } else {
        EmitLiteral(character);
    }
    return PE_NONE;
}

EPatternError CPatternCompiler::ReadBackReference() {
    const std::uint64_t opened = m_program.groupCount;
    std::uint64_t number = 0;
    for (; IsDigit(Peek()); Advance()) {
        // A number that is too large stays so, however many digits follow.
        number = number >= opened ? opened : number * 10 + static_cast<std::uint64_t>(Peek() - L'0');
    }
    if (number >= opened) {
        return PE_BAD_REFERENCE;
    }
    Emit(OP_BACK_REFERENCE, static_cast<std::uint32_t>(number));
    AtomRead(true);
    return PE_NONE;
}

EPatternError CPatternCompiler::ReadSet() {
    CCharacterSet set;
    const bool negated = TakeIf(L'^');
    if (Peek() == L']') {
        return PE_EMPTY_SET;
    }
    wchar_t first = 0;
    wchar_t last = 0;
    while (!TakeIf(L']')) {
        if (const EPatternError error = ReadRange(first, last); error != PE_NONE) {
            return error;
        }
        set.Add(first, last);
    }
    if (negated) {
        set.Negate();
    }
    if (!m_program.caseSensitive) {
        set.FoldCapitals();
    }
    Emit(OP_CHARACTER_SET, static_cast<std::uint32_t>(m_program.sets.size()));
    m_program.sets.push_back(std::move(set));
    AtomRead(false);
    return PE_NONE;
}

// A range of a set, of one character if there is no "-".
EPatternError CPatternCompiler::ReadRange(wchar_t& first, wchar_t& last) {
    if (!ReadSetCharacter(first)) {
        return PE_BRACKET_EXPECTED;
    }
    last = first;
    if (TakeIf(L'-')) {
        last = Peek();
        if (last == L'\0' || last == L']') {
            return PE_BRACKET_EXPECTED;
        }
        Advance();
    }
    const bool reversed = static_cast<std::uint32_t>(last) < static_cast<std::uint32_t>(first);
    return reversed ? PE_REVERSED_RANGE : PE_NONE;
}

// One member, or the lower bound of a range; only these may be written with a backslash.
bool CPatternCompiler::ReadSetCharacter(wchar_t& character) {
    const bool escaped = TakeIf(L'\\');
    if (Peek() == L'\0') {
        return false;
    }
    character = escaped && Peek() == L't' ? L'\t' : Peek();
    Advance();
    return true;
}

CPatternCompiler::Quantifier CPatternCompiler::ReadQuantifier() {
    Quantifier quantifier;
    if (Peek() == L'*' || Peek() == L'+' || Peek() == L'?') {
        quantifier.sign = *m_position;
        Advance();
        quantifier.lazy = TakeIf(L'?');
    }
    return quantifier;
}

EPatternError CPatternCompiler::CompleteAtom() {
    m_atomRead = false;
    EndLookaheads();
    const Quantifier quantifier = ReadQuantifier();
    const bool unbounded = quantifier.sign == L'*' || quantifier.sign == L'+';
    if (unbounded && m_atomEmpty) {
        return PE_EMPTY_REPETITION;
    }
    if (!FoldIntoRun(quantifier)) {
        Quantify(quantifier);
    }
    CompleteElement(m_atomEmpty || quantifier.sign == L'*' || quantifier.sign == L'?');
    return PE_NONE;
}

// Greedy repetition of one character becomes a run. The slots of an element that is one character or a run
// are removed at once, so that the group around it is seen to be one too ("\d" is a group around a set).
// Greedy repetition of a run "x+" is one run again, which ends at the same positions in the same order: as a
// loop around a run it would try every way to cut a long word in "\w+".
bool CPatternCompiler::FoldIntoRun(const Quantifier& quantifier) {
    std::vector<Instruction>& code = m_program.code;
    const Address slots = m_frames.back().slots;
    const std::size_t length = code.size() - slots - kSlots;
    if (length != 1 && length != 2) {
        return false;
    }
    const Instruction first = code[slots + kSlots];
    const Instruction body = code.back();
    const bool isRun = first.op == OP_RUN && length == 2;
    const bool isCharacter = ConsumesOne(first.op) && length == 1;
    const bool quantified = quantifier.sign != kNoQuantifier;
    const bool repeatable = !quantifier.lazy && (isRun ? first.atLeastOne : quantifier.sign != L'?');
    if ((!isCharacter && !isRun) || (quantified && !repeatable)) {
        return false;
    }
    code.resize(slots);
    if (Peek() == L'|') {
        Emit(OP_NOP);
    }
    if (isRun || quantified) {
        Emit(OP_RUN);
        code.back().atLeastOne = quantified ? quantifier.sign == L'+' : first.atLeastOne;
    }
    code.push_back(body);
    return true;
}

// Any other repetition: a choice in front of the element or after it, and a jump back.
void CPatternCompiler::Quantify(const Quantifier& quantifier) {
    const Address front = m_frames.back().slots + 1;
    if (quantifier.sign == L'+') {
        Emit(quantifier.lazy ? OP_SPLIT_PREFER_NEXT : OP_SPLIT_PREFER_TARGET, front + 1);
    } else if (quantifier.sign != kNoQuantifier) {
        if (quantifier.sign == L'*') {
            Emit(OP_JUMP, front);
        }
        m_program.code[front].op = quantifier.lazy ? OP_SPLIT_PREFER_TARGET : OP_SPLIT_PREFER_NEXT;
        m_program.code[front].operand = Here();
    }
}

// An element is an alternative of the chain, which a bar after it continues and anything else ends.
void CPatternCompiler::CompleteElement(bool canBeEmpty) {
    Frame& frame = m_frames.back();
    if (frame.kind == FR_EXPANSION) {
        m_frames.pop_back();
        m_position = m_resume;
        m_resume = nullptr;
        AtomRead(canBeEmpty);
        return;
    }
    frame.chainEmpty = frame.chainEmpty || canBeEmpty;
    if (TakeIf(L'|')) {
        frame.chainJumps = Emit(OP_JUMP, frame.chainJumps);
        m_program.code[frame.slots].op = OP_SPLIT_PREFER_NEXT;
        m_program.code[frame.slots].operand = Here();
        frame.operandDue = true;
    } else {
        for (Address jump = frame.chainJumps; jump != kNone;) {
            jump = std::exchange(m_program.code[jump].operand, Here());
        }
        frame.chainJumps = kNone;
        frame.sequenceEmpty = frame.sequenceEmpty && frame.chainEmpty;
        frame.chainEmpty = false;
    }
    frame.slots = kNone;
}

// At the end of the pattern or at a closer: the sequence of the innermost frame ends. A closer other than the
// expected one has no partner: it ends the whole pattern, without an error if nothing is left open.
EPatternError CPatternCompiler::CloseFrame(wchar_t closer) {
    const Frame frame = m_frames.back();
    switch (frame.kind) {
        case FR_PATTERN:
            m_frames.pop_back();
            return PE_NONE;
        case FR_CAPTURE_GROUP:
            if (closer != L'}') {
                return PE_BRACE_EXPECTED;
            }
            Emit(OP_GROUP_CLOSE, frame.group);
            break;
        case FR_PLAIN_GROUP:
            if (closer != L')') {
                return PE_PARENTHESIS_EXPECTED;
            }
            break;
        case FR_EXPANSION:
            return PE_BAD_ABBREVIATION;
    }
    Advance();
    m_frames.pop_back();
    AtomRead(frame.sequenceEmpty);
    return PE_NONE;
}

void CPatternCompiler::OpenFrame(EFrame kind) {
    Frame frame;
    frame.kind = kind;
    if (kind == FR_CAPTURE_GROUP) {
        frame.group = m_program.groupCount++;
        Emit(OP_GROUP_OPEN, frame.group);
    }
    m_frames.push_back(frame);
}

// Exclamation marks in front of an atom belong to its element, which then has its slots already.
void CPatternCompiler::ReserveSlots() {
    Frame& frame = m_frames.back();
    if (frame.slots == kNone) {
        frame.slots = Here();
        m_program.code.resize(m_program.code.size() + kSlots);
    }
}

void CPatternCompiler::AtomRead(bool canBeEmpty) {
    m_atomRead = true;
    m_atomEmpty = canBeEmpty;
    m_frames.back().operandDue = false;
}

// All look-aheads in front of one atom end after it, the innermost first.
void CPatternCompiler::EndLookaheads() {
    Frame& frame = m_frames.back();
    while (frame.lookaheads != kNone) {
        Emit(OP_LOOKAHEAD_END);
        frame.lookaheads = std::exchange(m_program.code[frame.lookaheads].operand, Here());
        m_atomEmpty = true;
    }
}

void CPatternCompiler::RemoveNops() {
    std::vector<Instruction>& code = m_program.code;
    std::vector<Address> moved;
    moved.reserve(code.size());
    Address kept = 0;
    for (const Instruction& instruction : code) {
        moved.push_back(kept);
        kept += instruction.op == OP_NOP ? 0 : 1;
    }
    std::erase_if(code, [](const Instruction& instruction) { return instruction.op == OP_NOP; });
    for (Instruction& instruction : code) {
        if (HasAddress(instruction.op)) {
            instruction.operand = moved[instruction.operand];
        }
    }
}

// After most runs comes a literal, perhaps after the end or beginning of groups: the search then ends the
// run only in front of that character.
void CPatternCompiler::FindFollowingLiterals() {
    std::vector<Instruction>& code = m_program.code;
    for (Instruction& run : code) {
        if (run.op == OP_RUN) {
            const Instruction* next = &run + 2;
            while (next->op == OP_GROUP_OPEN || next->op == OP_GROUP_CLOSE) {
                ++next;
            }
            run.operand = next->op == OP_CHARACTER ? static_cast<Address>(next - code.data()) : 0;
        }
    }
}

CPatternCompiler::Address CPatternCompiler::Emit(EOp op, Address operand) {
    Instruction instruction;
    instruction.op = op;
    instruction.operand = operand;
    m_program.code.push_back(instruction);
    return Here() - 1;
}

void CPatternCompiler::EmitLiteral(wchar_t character) {
    Instruction& literal = m_program.code[Emit(OP_CHARACTER)];
    literal.first = character;
    literal.second = m_program.caseSensitive ? character : CapitalForm(character);
    AtomRead(false);
}

}  // namespace tavrin::pattern
