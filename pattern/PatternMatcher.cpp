#include "pattern/PatternMatcher.h"

#include <exception>

#include "pattern/PatternCompiler.h"
#include "pattern/PatternSearch.h"

namespace tavrin::pattern {

// A container that cannot grow throws std::bad_alloc or std::length_error; nothing else is thrown here.
unsigned CPatternMatcher::Parse(const wchar_t* pattern, bool caseSensitive) {
    m_program = PatternProgram();
    m_error = PE_NULL_PATTERN;
    if (pattern != nullptr) {
        try {
            m_error = CPatternCompiler(pattern, caseSensitive, m_program).Compile();
        } catch (const std::exception&) {
            m_error = PE_NO_MEMORY;
        }
    }
    if (m_error != PE_NONE) {
        m_program = PatternProgram();
    }
    return m_error;
}

bool CPatternMatcher::Match(const wchar_t* input, CMatchContext* context, const wchar_t** endOut) const {
    if (context == nullptr) {
        return false;
    }
    context->m_match = {};
    try {
        context->m_groups.Assign(m_program.groupCount, {});
        if (input == nullptr || m_program.code.empty()) {
            return false;
        }
        const CMatchContext::Pair found = SearchPattern(m_program, input, context->m_groups);
        const bool matched = found.end != nullptr;
        if (matched) {
            context->m_match = found;
        }
        if (endOut != nullptr) {
            *endOut = matched ? found.end : found.start;
        }
        return matched;
    } catch (const std::exception&) {
        context->m_groups.Assign(0, {});
        return false;
    }
}

}  // namespace tavrin::pattern
