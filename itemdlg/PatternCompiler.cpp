// From the text of a pattern to its program.
#include "itemdlg/PatternCompiler.h"

#include <array>
#include <cwchar>
#include <stdexcept>
#include <utility>

#include "itemdlg/LetterCase.h"

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

}  // namespace

CPatternCompiler::CPatternCompiler(const wchar_t* pattern, bool caseSensitive, PatternProgram& program)
    : m_position(pattern), m_program(program) {
    m_program.caseSensitive = caseSensitive;
}

EPatternError CPatternCompiler::Compile() {
    m_frames.emplace_back();
    if (Peek() == L'^') {
        m_program.anchored = true;
        Advance();
    }
    while (!m_frames.empty()) {
        const EPatternError error = m_atomRead ? CompleteAtom() : ReadAtom();
        if (error != PE_NONE) {
            return m_resume != nullptr ? PE_BAD_ABBREVIATION : error;
        }
    }
    Emit(EOp::Match);
    RemoveNothings(m_program);
    return PE_NONE;
}

// A case-insensitive pattern is read as if it had been lower-cased as a whole, sets and escapes included;
// the expansions of abbreviations are read as they stand.
wchar_t CPatternCompiler::Peek() const {
    const bool asItStands = m_program.caseSensitive || m_resume != nullptr;
    return asItStands ? *m_position : LowerForm(*m_position);
}

EPatternError CPatternCompiler::ReadAtom() {
    const wchar_t character = Peek();
    if (character == L'\0' || IsCloser(character)) {
        if (!m_frames.back().operandDue) {
            return CloseFrame(character);
        }
        // The missing operand of a bar or an exclamation mark is the empty text.
        KeepPlaces();
        AtomRead(true);
        return PE_NONE;
    }
    KeepPlaces();
    Advance();
    switch (character) {
        case L'!':
            m_frames.back().looks = Emit(EOp::Look, m_frames.back().looks);
            m_frames.back().operandDue = true;
            return PE_NONE;
        case L'{':
            OpenFrame(EFrame::CaptureGroup);
            return PE_NONE;
        case L'(':
            OpenFrame(EFrame::PlainGroup);
            return PE_NONE;
        case L'[':
            return ReadSet();
        case L'\\':
            return ReadEscape();
        case L'.':
            Emit(EOp::AnyCharacter);
            AtomRead(false);
            return PE_NONE;
        case L'$':
            if (*m_position == L'\0') {
                Emit(EOp::EndOfInput);
                AtomRead(true);
                return PE_NONE;
            }
            break;
        default:
            break;
    }
    // Quantifiers and bars come here too: where an element begins they are literals.
    EmitLiteral(character);
    return PE_NONE;
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
        OpenFrame(EFrame::Expansion);
        return PE_NONE;
    }
    EmitLiteral(character);
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
    Emit(EOp::BackReference, static_cast<std::uint32_t>(number));
    AtomRead(true);
    return PE_NONE;
}

EPatternError CPatternCompiler::ReadSet() {
    CCharacterSet set;
    const bool negated = Peek() == L'^';
    if (negated) {
        Advance();
    }
    if (Peek() == L']') {
        return PE_EMPTY_SET;
    }
    wchar_t first = 0;
    wchar_t last = 0;
    std::size_t ranges = 0;
    for (; Peek() != L']'; ++ranges) {
        if (const EPatternError error = ReadRange(first, last); error != PE_NONE) {
            return error;
        }
        set.Add(first, last);
    }
    Advance();
    if (negated) {
        set.Negate();
    }
    const bool folded = !m_program.caseSensitive && set.FoldCapitals();
    if (ranges == 1 && !negated && !folded) {
        // The sets that people write most: tested without looking into a table.
        Instruction& range = m_program.code[Emit(EOp::CharacterRange)];
        range.first = first;
        range.second = last;
    } else {
        Emit(EOp::CharacterSet, static_cast<std::uint32_t>(m_program.sets.size()));
        m_program.sets.push_back(std::move(set));
    }
    AtomRead(false);
    return PE_NONE;
}

// A range of a set, of one character if there is no "-".
EPatternError CPatternCompiler::ReadRange(wchar_t& first, wchar_t& last) {
    if (!ReadSetCharacter(first)) {
        return PE_BRACKET_EXPECTED;
    }
    last = first;
    if (Peek() == L'-') {
        Advance();
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
    character = Peek();
    if (character == L'\\') {
        Advance();
        character = Peek() == L't' ? L'\t' : Peek();
    }
    if (Peek() == L'\0') {
        return false;
    }
    Advance();
    return true;
}

CPatternCompiler::Quantifier CPatternCompiler::ReadQuantifier() {
    const wchar_t character = Peek();
    Quantifier quantifier;
    quantifier.atLeastOne = character == L'+';
    quantifier.atMostOne = character == L'?';
    quantifier.present = quantifier.atLeastOne || quantifier.atMostOne || character == L'*';
    if (quantifier.present) {
        Advance();
        quantifier.lazy = Peek() == L'?';
        if (quantifier.lazy) {
            Advance();
        }
    }
    return quantifier;
}

EPatternError CPatternCompiler::CompleteAtom() {
    m_atomRead = false;
    Frame& frame = m_frames.back();
    if (frame.looks != kNone) {
        CloseLooks(frame);
        m_atomEmpty = true;
    }
    const Quantifier quantifier = ReadQuantifier();
    if (quantifier.present && !quantifier.atMostOne && m_atomEmpty) {
        return PE_EMPTY_REPETITION;
    }
    if (!FoldIntoRun(frame, quantifier) && quantifier.present) {
        Quantify(frame, quantifier);
    }
    CompleteElement(m_atomEmpty || (quantifier.present && !quantifier.atLeastOne));
    return PE_NONE;
}

// Repeats of one character become a run, and no places are kept in front of them. That includes what is one
// character only once its own groups are seen through ("\d" is a group around a set), and greedy repeats of a
// greedy "x+", which reach the same ends in the same order as one run does but would try each of them over
// and over ("\w+" on a long word).
bool CPatternCompiler::FoldIntoRun(const Frame& frame, const Quantifier& quantifier) {
    std::vector<Instruction>& code = m_program.code;
    const std::size_t start = frame.places + kPlaces;
    const std::size_t length = code.size() - start;
    if (length != 1 && length != 2) {
        return false;
    }
    Instruction run = code[start];
    const Instruction body = code.back();
    bool repeated = true;
    if (length == 1 && ConsumesOne(body.op)) {
        repeated = quantifier.present;
        run.op = quantifier.lazy ? EOp::LazyRun : EOp::Run;
        run.atLeastOne = quantifier.atLeastOne;
        run.atMostOne = quantifier.atMostOne;
    } else if (run.op == EOp::Run && run.atLeastOne && quantifier.present && !quantifier.lazy) {
        run.atLeastOne = quantifier.atLeastOne;
    } else if (!IsRun(run.op) || quantifier.present) {
        return false;
    }
    code.resize(frame.places);
    if (Peek() == L'|') {
        Emit(EOp::Nothing);
    }
    if (repeated) {
        code.push_back(run);
    }
    code.push_back(body);
    return true;
}

// Repeats of anything else: a choice in front of the element or behind it, and a way back.
void CPatternCompiler::Quantify(const Frame& frame, const Quantifier& quantifier) {
    const Address front = frame.places + 1;
    if (quantifier.atLeastOne) {
        Emit(quantifier.lazy ? EOp::NextFirst : EOp::OperandFirst, front + 1);
        return;
    }
    if (!quantifier.atMostOne) {
        Emit(EOp::Jump, front);
    }
    m_program.code[front].op = quantifier.lazy ? EOp::OperandFirst : EOp::NextFirst;
    m_program.code[front].operand = Here();
}

// An element is an alternative of the chain that a bar behind it goes on with, or else ends.
void CPatternCompiler::CompleteElement(bool canBeEmpty) {
    Frame& frame = m_frames.back();
    if (frame.kind == EFrame::Expansion) {
        m_frames.pop_back();
        m_position = m_resume;
        m_resume = nullptr;
        AtomRead(canBeEmpty);
        return;
    }
    frame.chainEmpty = frame.chainEmpty || canBeEmpty;
    if (Peek() == L'|') {
        Advance();
        frame.chainJumps = Emit(EOp::Jump, frame.chainJumps);
        m_program.code[frame.places].op = EOp::NextFirst;
        m_program.code[frame.places].operand = Here();
        frame.operandDue = true;
    } else {
        for (Address jump = frame.chainJumps; jump != kNone;) {
            Address& operand = m_program.code[jump].operand;
            jump = operand;
            operand = Here();
        }
        frame.chainJumps = kNone;
        frame.sequenceEmpty = frame.sequenceEmpty && frame.chainEmpty;
        frame.chainEmpty = false;
    }
    frame.places = kNone;
}

// At the end of the pattern or at a closer: the sequence of the innermost frame ends. A closer that is not
// the one awaited has no partner: it ends the whole pattern, quietly if nothing is left open.
EPatternError CPatternCompiler::CloseFrame(wchar_t closer) {
    const Frame frame = m_frames.back();
    switch (frame.kind) {
        case EFrame::Pattern:
            m_frames.pop_back();
            return PE_NONE;
        case EFrame::CaptureGroup:
            if (closer != L'}') {
                return PE_BRACE_EXPECTED;
            }
            Emit(EOp::GroupClose, frame.group);
            break;
        case EFrame::PlainGroup:
            if (closer != L')') {
                return PE_PARENTHESIS_EXPECTED;
            }
            break;
        case EFrame::Expansion:
            return PE_BAD_ABBREVIATION;
    }
    Advance();
    m_frames.pop_back();
    AtomRead(frame.sequenceEmpty);
    return PE_NONE;
}

// The first place is for the choice of an alternation, the second for that of a quantifier. Exclamation marks
// in front of an atom belong to its element, which then has its places already.
void CPatternCompiler::KeepPlaces() {
    Frame& frame = m_frames.back();
    if (frame.places == kNone) {
        frame.places = Here();
        for (Address count = 0; count < kPlaces; ++count) {
            Emit(EOp::Nothing);
        }
    }
}

void CPatternCompiler::AtomRead(bool canBeEmpty) {
    m_atomRead = true;
    m_atomEmpty = canBeEmpty;
    m_frames.back().operandDue = false;
}

void CPatternCompiler::OpenFrame(EFrame kind) {
    Frame frame;
    frame.kind = kind;
    if (kind == EFrame::CaptureGroup) {
        frame.group = m_program.groupCount++;
        Emit(EOp::GroupOpen, frame.group);
    }
    m_frames.push_back(frame);
}

// All look-aheads in front of one atom end behind it, the innermost first.
void CPatternCompiler::CloseLooks(Frame& frame) {
    while (frame.looks != kNone) {
        Emit(EOp::LookHit);
        Address& operand = m_program.code[frame.looks].operand;
        frame.looks = operand;
        operand = Here();
    }
}

CPatternCompiler::Address CPatternCompiler::Emit(EOp op, Address operand) {
    const std::size_t address = m_program.code.size();
    if (address >= kNone) {
        throw std::length_error("pattern program");
    }
    Instruction instruction;
    instruction.op = op;
    instruction.operand = operand;
    m_program.code.push_back(instruction);
    return static_cast<Address>(address);
}

void CPatternCompiler::EmitLiteral(wchar_t character) {
    Instruction& literal = m_program.code[Emit(EOp::Character)];
    literal.first = character;
    literal.second = m_program.caseSensitive ? character : CapitalForm(character);
    AtomRead(false);
}
