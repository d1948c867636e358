#include "pattern/CharacterSet.h"

#include <algorithm>

#include "pattern/LetterCase.h"

namespace tavrin::pattern {

void CCharacterSet::Add(wchar_t first, wchar_t last) {
    const auto from = static_cast<std::uint32_t>(first);
    const auto to = static_cast<std::uint32_t>(last);
    for (std::uint32_t code = from; code <= to && code < kLowCount; ++code) {
        m_low.set(code);
    }
    if (to >= kLowCount) {
        m_high.push_back({std::max(from, kLowCount), to});
    }
}

void CCharacterSet::Negate() {
    m_low.flip();
    m_low.reset(0);
    m_negated = !m_negated;
}

void CCharacterSet::FoldCapitals() {
    for (std::uint32_t code = 0; code < kLowCount; ++code) {
        const wchar_t lower = LowerForm(static_cast<wchar_t>(code));
        m_low[code] = m_low[static_cast<std::uint32_t>(lower)];
    }
}

bool CCharacterSet::ContainsHigh(std::uint32_t code) const {
    const bool listed = std::any_of(m_high.begin(), m_high.end(), [code](const Range& range) {
        return range.first <= code && code <= range.last;
    });
    return listed != m_negated;
}

}  // namespace tavrin::pattern
