// The backtracking search.
#include "itemdlg/PatternSearch.h"

#include <cwchar>

#include "itemdlg/LetterCase.h"

namespace {

using EKind = BacktrackEntry::EKind;

bool IsOneOf(const Instruction& literal, wchar_t character) {
    return character == literal.first || character == literal.second;
}

bool IsInRange(const Instruction& range, wchar_t character) {
    const auto first = static_cast<std::uint32_t>(range.first);
    return static_cast<std::uint32_t>(character) - first <= static_cast<std::uint32_t>(range.second) - first;
}

// Whether one of the characters from `block` on is a given literal. Without a branch in between, which
// compilers turn into vector instructions. The usual line is short: larger blocks cost it more than they save
// in long ones.
constexpr std::ptrdiff_t kBlock = 8;
bool BlockHolds(const Instruction& literal, const wchar_t* block) {
    int found = 0;
    for (std::ptrdiff_t index = 0; index < kBlock; ++index) {
        found |= static_cast<int>(block[index] == literal.first) |
                 static_cast<int>(block[index] == literal.second);
    }
    return found != 0;
}

// The first place from here on whose character fails the test; the null at the end fails every one.
template <class TTest>
const wchar_t* SkipWhile(const wchar_t* place, TTest test) {
    while (test(*place)) {
        ++place;
    }
    return place;
}

}  // namespace

const wchar_t* CPatternSearch::MatchAt(const wchar_t* start) {
    const Instruction* at = m_code;
    const wchar_t* place = start;
    for (std::size_t steps = 1;; ++steps) {
        // A case goes on with the loop by itself, or leaves the switch with `end` behind what it consumed;
        // null stands for failure.
        const wchar_t* end = nullptr;
        switch (at->op) {
            case EOp::Character:
                if (IsOneOf(*at, *place)) {
                    ++place;
                    ++at;
                    continue;
                }
                break;
            case EOp::CharacterRange:
                end = IsInRange(*at, *place) ? place + 1 : nullptr;
                break;
            case EOp::CharacterSet:
                end = m_sets[at->operand].Contains(*place) ? place + 1 : nullptr;
                break;
            case EOp::AnyCharacter:
                end = *place != L'\0' ? place + 1 : nullptr;
                break;
            case EOp::SpanCharacter:
            case EOp::SpanRange:
            case EOp::SpanSet:
            case EOp::SpanRest:
                end = RunEnd(*at, place);
                break;
            case EOp::Run:
            case EOp::LazyRun:
                end = at->op == EOp::Run ? StartRun(*at, place) : StartLazyRun(*at, place);
                if (end != nullptr) {
                    place = end;
                    at += 2;
                    continue;
                }
                break;
            case EOp::EndOfInput:
                if (*place == L'\0') {
                    ++at;
                    continue;
                }
                break;
            case EOp::GroupOpen:
                m_stack.Push({EKind::Opening, at->operand, m_groups[at->operand].opening, nullptr});
                m_groups[at->operand].opening = place;
                ++at;
                continue;
            case EOp::GroupClose:
                CloseGroup(m_groups[at->operand], at->operand, place);
                ++at;
                continue;
            case EOp::BackReference:
                end = MatchReference(*at, place);
                break;
            case EOp::NextFirst:
                m_stack.Push({EKind::Choice, at->operand, place, nullptr});
                ++at;
                continue;
            case EOp::OperandFirst:
                m_stack.Push({EKind::Choice, AddressOf(at + 1), place, nullptr});
                at = m_code + at->operand;
                continue;
            case EOp::Jump:
                at = m_code + at->operand;
                continue;
            case EOp::Look:
                m_stack.Push({EKind::Look, at->operand, place, nullptr});
                ++at;
                continue;
            case EOp::LookHit:
                LeaveLook();
                break;
            case EOp::Match:
                m_steps += steps;
                return place;
            case EOp::Nothing:
                ++at;
                continue;
        }
        if (end != nullptr) {
            steps += static_cast<std::size_t>(end - place);
            place = end;
            ++at;
            continue;
        }
        const State state = BackOut();
        if (state.at == nullptr) {
            m_steps += steps;
            return nullptr;
        }
        at = state.at;
        place = state.place;
    }
}

// Goes back to the latest choice that is still open.
inline CPatternSearch::State CPatternSearch::BackOut() {
    while (!m_stack.IsEmpty()) {
        ++m_steps;
        BacktrackEntry& entry = m_stack.Top();
        const std::uint32_t index = entry.index;
        const wchar_t* place = entry.first;
        switch (entry.kind) {
            case EKind::Choice:
            case EKind::Look:
                m_stack.Pop();
                return {m_code + index, place};
            case EKind::Opening:
            case EKind::Group:
                RestoreGroup(entry);
                m_stack.Pop();
                break;
            case EKind::Run:
            case EKind::LazyRun:
                place = entry.kind == EKind::Run ? GiveBack(entry) : TakeMore(entry);
                if (place != nullptr) {
                    return {m_code + index + 2, place};
                }
                break;
        }
    }
    return {nullptr, nullptr};
}

// What a look-ahead forbids has matched: all that is remembered since it began goes, choices included, and
// so do the captures made inside. Look-aheads that began later are over, so the topmost entry is the one.
void CPatternSearch::LeaveLook() {
    for (;;) {
        ++m_steps;
        const BacktrackEntry entry = m_stack.Top();
        m_stack.Pop();
        if (entry.kind == EKind::Look) {
            return;
        }
        RestoreGroup(entry);
    }
}

// Until here the group has held what it captured the time before, which a reference inside it matches.
inline void CPatternSearch::CloseGroup(CMatchContext::Capture& group, std::uint32_t index,
                                       const wchar_t* place) {
    m_stack.Push({EKind::Group, index, group.pair.start, group.pair.end});
    group.pair = {group.opening, place};
}

// Takes back what an entry tells of a group; other entries tell nothing.
inline void CPatternSearch::RestoreGroup(const BacktrackEntry& entry) {
    if (entry.kind == EKind::Opening) {
        m_groups[entry.index].opening = entry.first;
    } else if (entry.kind == EKind::Group) {
        m_groups[entry.index].pair = {entry.first, entry.second};
    }
}

const wchar_t* CPatternSearch::MatchReference(const Instruction& reference, const wchar_t* place) const {
    const CMatchContext::Pair& group = m_groups[reference.operand].pair;
    for (const wchar_t* captured = group.start; captured != group.end; ++captured, ++place) {
        const bool same =
            m_program.caseSensitive ? *captured == *place : LowerForm(*captured) == LowerForm(*place);
        if (!same) {
            return nullptr;
        }
    }
    return place;
}

const wchar_t* CPatternSearch::StartRun(const Instruction& run, const wchar_t* place) {
    const Instruction& consumer = (&run)[1];
    const wchar_t* most = place;
    if (!run.atMostOne) {
        most = RunEnd(consumer, place);
    } else if (Accepts(consumer, *place)) {
        ++most;
    }
    m_steps += static_cast<std::size_t>(most - place);
    if (run.atLeastOne && most == place++) {
        return nullptr;
    }
    if (run.follow == EFollow::Literal && !CanFollow(run, most)) {
        most = FindLastFollow(run, place, most);
    }
    if (most != nullptr && most != place) {
        m_stack.Push({EKind::Run, AddressOf(&run), place, most});
    }
    return most;
}

// The topmost entry is a run: gives back one repetition, or as many as it takes to stand where the rest of
// the pattern has a chance.
const wchar_t* CPatternSearch::GiveBack(BacktrackEntry& entry) {
    const Instruction& run = m_code[entry.index];
    const wchar_t* place =
        run.follow == EFollow::Literal ? FindLastFollow(run, entry.first, entry.second) : entry.second - 1;
    entry.second = place;
    if (place == nullptr || place == entry.first) {
        m_stack.Pop();
    }
    return place;
}

const wchar_t* CPatternSearch::StartLazyRun(const Instruction& run, const wchar_t* place) {
    const Instruction& consumer = (&run)[1];
    if (run.atLeastOne && !Accepts(consumer, *place++)) {
        return nullptr;
    }
    m_stack.Push({EKind::LazyRun, AddressOf(&run), place, nullptr});
    return place;
}

// The topmost entry is a lazy run: takes one repetition more, or as many as it takes to stand where the rest
// of the pattern has a chance.
const wchar_t* CPatternSearch::TakeMore(BacktrackEntry& entry) {
    const Instruction& run = m_code[entry.index];
    const Instruction& consumer = m_code[entry.index + 1];
    const wchar_t* place = entry.first;
    if (!Accepts(consumer, *place)) {
        m_stack.Pop();
        return nullptr;
    }
    ++place;
    if (run.atMostOne) {
        m_stack.Pop();
        return place;
    }
    while (run.follow == EFollow::Literal && !CanFollow(run, place) && Accepts(consumer, *place)) {
        ++place;
    }
    m_steps += static_cast<std::size_t>(place - entry.first);
    entry.first = place;
    return place;
}

// The first place from here on with a character that the consumer, or the span made of it, does not accept.
inline const wchar_t* CPatternSearch::RunEnd(const Instruction& consumer, const wchar_t* place) {
    switch (consumer.op) {
        case EOp::Character:
        case EOp::SpanCharacter:
            return SkipWhile(place, [&consumer](wchar_t next) { return IsOneOf(consumer, next); });
        case EOp::CharacterRange:
        case EOp::SpanRange:
            return SkipWhile(place, [&consumer](wchar_t next) { return IsInRange(consumer, next); });
        case EOp::CharacterSet:
        case EOp::SpanSet: {
            const CCharacterSet& set = m_sets[consumer.operand];
            return SkipWhile(place, [&set](wchar_t next) { return set.Contains(next); });
        }
        default:
            break;
    }
    // Any character. The end is looked for once in a search, and only when it is needed.
    if (m_inputEnd == nullptr) {
        m_inputEnd = place + std::wcslen(place);
    }
    return m_inputEnd;
}

// The last place in [first, last) where what follows the run can begin; null when there is none.
const wchar_t* CPatternSearch::FindLastFollow(const Instruction& run, const wchar_t* first,
                                              const wchar_t* last) {
    const wchar_t* place = last;
    bool found = false;
    while (!found && place != first) {
        // The last block may reach back over places that were tried already.
        const wchar_t* stop = place - first >= kBlock ? place - kBlock : first;
        if (last - stop >= kBlock && !BlockHolds(run, stop)) {
            place = stop;
            continue;
        }
        while (!found && place != stop) {
            found = CanFollow(run, --place);
        }
    }
    m_steps += static_cast<std::size_t>(last - place);
    return found ? place : nullptr;
}

inline bool CPatternSearch::CanFollow(const Instruction& run, const wchar_t* place) const {
    if (!IsOneOf(run, place[0])) {
        return false;
    }
    const RunPreview& preview = m_program.previews[run.operand];
    return preview.second.Contain(place[1]) && (place[1] == L'\0' || preview.third.Contain(place[2]));
}

inline bool CPatternSearch::Accepts(const Instruction& consumer, wchar_t character) const {
    switch (consumer.op) {
        case EOp::Character:
            return IsOneOf(consumer, character);
        case EOp::CharacterRange:
            return IsInRange(consumer, character);
        case EOp::CharacterSet:
            return m_sets[consumer.operand].Contains(character);
        default:
            return character != L'\0';
    }
}
