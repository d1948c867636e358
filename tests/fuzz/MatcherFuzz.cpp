// The pattern matcher beside PCRE2: the same errors, the same matches, the same groups. The first byte says
// whether case matters, the rest of the first line is the pattern, all after it the input.
#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

#include <memory>
#include <optional>
#include <vector>

#include "pattern/PatternMatcher.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/PatternTranslation.h"

using namespace tavrin::pattern;

namespace {

// Longer ones find little more and backtrack for ever.
constexpr std::size_t kLongestPattern = 80;
constexpr std::size_t kLongestInput = 60;
constexpr std::uint32_t kMostWork = 20'000;

struct Result {
    std::size_t start = 0;                           // of the match; without one, the start tried last
    std::optional<std::vector<PCRE2_SIZE>> offsets;  // begin and end of the match and of each group
};

// PCRE2 with as many attempts as our matcher makes, each at one start. Its shortcuts are off: a pattern that
// takes it too long takes us too long as well.
class CPeer {
public:
    explicit CPeer(const PatternTranslation& pattern) : m_anchored(pattern.anchored) {
        constexpr std::uint32_t options = PCRE2_DOTALL | PCRE2_MATCH_UNSET_BACKREF | PCRE2_NO_AUTO_POSSESS |
                                          PCRE2_NO_START_OPTIMIZE | PCRE2_NO_DOTSTAR_ANCHOR;
        int error = 0;
        PCRE2_SIZE errorOffset = 0;
        m_code.reset(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.pattern.data()),
                                   pattern.pattern.size(), options, &error, &errorOffset, nullptr));
        Require(m_code != nullptr, "PCRE2 takes the translation");
        m_data.reset(pcre2_match_data_create_from_pattern(m_code.get(), nullptr));
        m_context.reset(pcre2_match_context_create(nullptr));
        pcre2_set_match_limit(m_context.get(), kMostWork);
    }

    // Nothing when it would take too long.
    std::optional<Result> Match(const std::wstring& input) {
        const std::u16string text(input.begin(), input.end());
        Result result;
        for (;; ++result.start) {
            const int status =
                pcre2_match(m_code.get(), reinterpret_cast<PCRE2_SPTR>(text.data()), text.size(),
                            result.start, PCRE2_ANCHORED, m_data.get(), m_context.get());
            if (status > 0) {
                const PCRE2_SIZE* offsets = pcre2_get_ovector_pointer(m_data.get());
                result.offsets.emplace(offsets,
                                       offsets + std::size_t{2} * pcre2_get_ovector_count(m_data.get()));
                return result;
            }
            if (status != PCRE2_ERROR_NOMATCH) {
                return std::nullopt;
            }
            // The end of the input is tried as a start only when the input is empty.
            if (m_anchored || result.start + 1 >= text.size()) {
                return result;
            }
        }
    }

private:
    struct Free {
        void operator()(pcre2_code* code) const { pcre2_code_free(code); }
        void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
        void operator()(pcre2_match_context* context) const { pcre2_match_context_free(context); }
    };

    bool m_anchored;
    std::unique_ptr<pcre2_code, Free> m_code;
    std::unique_ptr<pcre2_match_data, Free> m_data;
    std::unique_ptr<pcre2_match_context, Free> m_context;
};

void RequireSame(const CMatchContext& context, const wchar_t* input, const std::vector<PCRE2_SIZE>& offsets) {
    const auto same = [input](const wchar_t* ours, PCRE2_SIZE theirs) {
        return theirs == PCRE2_UNSET ? ours == nullptr
                                     : ours != nullptr && static_cast<PCRE2_SIZE>(ours - input) == theirs;
    };
    Require(same(context.MatchStart(), offsets[0]) && same(context.MatchEnd(), offsets[1]),
            "the match is PCRE2's");
    Require(offsets.size() == 2 * (context.GroupCount() + 1), "there are as many groups as in PCRE2");
    for (std::size_t group = 0; group < context.GroupCount(); ++group) {
        Require(same(context.Group(group).start, offsets[2 * group + 2]) &&
                    same(context.Group(group).end, offsets[2 * group + 3]),
                "each group is PCRE2's");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const bool caseSensitive = data[0] % 2 == 1;
    std::string_view bytes = Bytes(data + 1, size - 1);
    std::wstring pattern = WideText(CutLine(bytes).substr(0, kLongestPattern));
    std::wstring input = WideText(bytes.substr(0, kLongestInput));
    // Both end at their first null.
    pattern.resize(std::wcslen(pattern.c_str()));
    input.resize(std::wcslen(input.c_str()));

    CPatternMatcher matcher;
    const CTightText tightPattern(pattern);
    const unsigned error = matcher.Parse(tightPattern.Get(), caseSensitive);
    const PatternTranslation translation = TranslatePattern(caseSensitive ? pattern : LowerCase(pattern));
    Require(error == translation.error, "the error is the translation's");
    if (error != PE_NONE) {
        return 0;
    }
    Require(matcher.GroupCount() == translation.groupCount, "the groups are the translation's");
    const std::optional<Result> expected = CPeer(translation).Match(caseSensitive ? input : LowerCase(input));
    if (!expected) {
        return 0;
    }
    const CTightText tightInput(input);
    CMatchContext context;
    const wchar_t* end = nullptr;
    const bool matched = matcher.Match(tightInput.Get(), &context, &end);
    Require(matched == expected->offsets.has_value(), "there is a match exactly when PCRE2 finds one");
    if (matched) {
        RequireSame(context, tightInput.Get(), *expected->offsets);
        Require(end == context.MatchEnd(), "the matching stops at the end of the match");
    } else {
        Require(end == tightInput.Get() + expected->start, "a failure stops at the start tried last");
    }
    return 0;
}
