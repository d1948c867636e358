// Compiling a pattern and trying its start positions.
#include "itemdlg/PatternMatcher.h"

#include <new>
#include <stdexcept>

#include "itemdlg/PatternCompiler.h"
#include "itemdlg/PatternSearch.h"
#include "itemdlg/PatternTuning.h"

unsigned CPatternMatcher::Parse(const wchar_t* pattern, bool caseSensitive) {
    m_program = PatternProgram();
    m_error = PE_NULL_PATTERN;
    if (pattern == nullptr) {
        return m_error;
    }
    try {
        m_error = CPatternCompiler(pattern, caseSensitive, m_program).Compile();
        if (m_error == PE_NONE) {
            TunePattern(m_program);
        }
    } catch (const std::bad_alloc&) {
        m_error = PE_NO_MEMORY;
    } catch (const std::length_error&) {
        m_error = PE_NO_MEMORY;
    }
    if (m_error != PE_NONE) {
        m_program = PatternProgram();
    }
    return m_error;
}

bool CPatternMatcher::Match(const wchar_t* input, CMatchContext* context, const wchar_t** endOut) const {
    return MatchUpTo(input, nullptr, context, endOut);
}

bool CPatternMatcher::Match(std::wstring_view input, CMatchContext* context, const wchar_t** endOut) const {
    return MatchUpTo(input.data(), input.data() + input.size(), context, endOut);
}

bool CPatternMatcher::MatchUpTo(const wchar_t* input, const wchar_t* inputEnd, CMatchContext* context,
                                const wchar_t** endOut) const {
    if (context == nullptr) {
        return false;
    }
    context->m_match = {};
    context->m_steps = 0;
    try {
        context->ResetGroups(m_program.groupCount);
        if (input == nullptr || m_program.code.empty()) {
            return false;
        }
        CPatternSearch search(m_program, inputEnd, context->Groups());
        const wchar_t* start = input;
        const wchar_t* end = search.MatchAt(start);
        // The place behind the last character is a start position in an empty input alone.
        while (end == nullptr && !m_program.anchored && start[0] != L'\0' && start[1] != L'\0') {
            end = search.MatchAt(++start);
        }
        context->m_steps = search.Steps();
        if (endOut != nullptr) {
            *endOut = end != nullptr ? end : start;
        }
        if (end != nullptr) {
            context->m_match = {start, end};
        } else {
            context->ResetGroups(m_program.groupCount);
        }
        return end != nullptr;
    } catch (const std::bad_alloc&) {
        context->ResetGroups(0);
    } catch (const std::length_error&) {
        context->ResetGroups(0);
    }
    return false;
}
