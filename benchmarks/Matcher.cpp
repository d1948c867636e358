// Our matcher and its peers, the other libraries. The peers' patterns are compiled so that a dot matches any
// character and a dollar sign only the end of the text, as in our patterns; this is also their fastest mode.
#define PCRE2_CODE_UNIT_WIDTH 16
#include "benchmarks/Matcher.h"

#include <pcre2.h>
#include <re2/re2.h>

#include <boost/regex.hpp>
#include <regex>
#include <stdexcept>

#include "pattern/PatternMatcher.h"

namespace tavrin::benchmarks {

using namespace tavrin::pattern;

namespace {

[[noreturn]] void ThrowRejected(const char* library) {
    throw std::runtime_error(std::string(library) + " rejects the pattern");
}

class COurs : public IMatcher {
public:
    explicit COurs(const BenchPattern& pattern) {
        if (m_matcher.Parse(pattern.ours, false) != PE_NONE) {
            ThrowRejected("our matcher");
        }
    }

    void SetLines(const Lines& lines) override { m_lines = lines; }

    std::size_t CountMatches() override {
        std::size_t count = 0;
        for (const std::wstring& line : m_lines) {
            count += m_matcher.Match(line.c_str(), &m_context) ? 1 : 0;
        }
        return count;
    }

    std::optional<MatchSpans> Find(std::size_t line) override {
        const wchar_t* text = m_lines[line].c_str();
        if (!m_matcher.Match(text, &m_context)) {
            return std::nullopt;
        }
        MatchSpans spans = {{m_context.MatchStart() - text, m_context.MatchEnd() - text}};
        for (std::size_t group = 0; group < m_context.GroupCount(); ++group) {
            spans.push_back({m_context.Group(group).start - text, m_context.Group(group).end - text});
        }
        return spans;
    }

private:
    CPatternMatcher m_matcher;
    CMatchContext m_context;
    Lines m_lines;
};

// PCRE2 for 16-bit characters, as the module uses them.
class CPcre2 : public IMatcher {
public:
    CPcre2(const BenchPattern& pattern, bool jit) : m_jit(jit) {
        const std::string text = pattern.theirs;
        const std::u16string wide(text.begin(), text.end());
        int error = 0;
        PCRE2_SIZE errorOffset = 0;
        m_code = pcre2_compile(reinterpret_cast<PCRE2_SPTR>(wide.c_str()), wide.size(),
                               PCRE2_CASELESS | PCRE2_DOTALL | PCRE2_DOLLAR_ENDONLY, &error, &errorOffset,
                               nullptr);
        if (m_code == nullptr || (jit && pcre2_jit_compile(m_code, PCRE2_JIT_COMPLETE) != 0)) {
            ThrowRejected("PCRE2");
        }
        m_data = pcre2_match_data_create_from_pattern(m_code, nullptr);
    }
    CPcre2(const CPcre2&) = delete;
    CPcre2& operator=(const CPcre2&) = delete;
    ~CPcre2() override {
        pcre2_match_data_free(m_data);
        pcre2_code_free(m_code);
    }

    void SetLines(const Lines& lines) override {
        m_lines.clear();
        for (const std::wstring& line : lines) {
            m_lines.emplace_back(line.begin(), line.end());
        }
    }

    std::size_t CountMatches() override {
        std::size_t count = 0;
        for (const std::u16string& line : m_lines) {
            count += Match(line) ? 1 : 0;
        }
        return count;
    }

    std::optional<MatchSpans> Find(std::size_t line) override {
        if (!Match(m_lines[line])) {
            return std::nullopt;
        }
        const PCRE2_SIZE* pairs = pcre2_get_ovector_pointer(m_data);
        MatchSpans spans;
        for (std::uint32_t pair = 0; pair < pcre2_get_ovector_count(m_data); ++pair) {
            spans.push_back({static_cast<std::ptrdiff_t>(pairs[2 * pair]),
                             static_cast<std::ptrdiff_t>(pairs[2 * pair + 1])});
        }
        return spans;
    }

private:
    bool Match(const std::u16string& line) {
        const auto* text = reinterpret_cast<PCRE2_SPTR>(line.data());
        // pcre2_jit_match leaves out the argument checks of pcre2_match.
        return (m_jit ? pcre2_jit_match(m_code, text, line.size(), 0, 0, m_data, nullptr)
                      : pcre2_match(m_code, text, line.size(), 0, 0, m_data, nullptr)) > 0;
    }

    bool m_jit;
    pcre2_code* m_code = nullptr;
    pcre2_match_data* m_data = nullptr;
    std::vector<std::u16string> m_lines;
};

// RE2 matches Latin-1 or UTF-8 text; Latin-1 is faster.
class CRe2 : public IMatcher {
public:
    explicit CRe2(const BenchPattern& pattern) : m_regex(pattern.theirs, Options()) {
        if (!m_regex.ok()) {
            ThrowRejected("RE2");
        }
        m_groups.resize(static_cast<std::size_t>(m_regex.NumberOfCapturingGroups()) + 1);
    }

    void SetLines(const Lines& lines) override {
        m_lines.clear();
        for (const std::wstring& line : lines) {
            std::string bytes;
            for (const wchar_t character : line) {
                bytes.push_back(static_cast<char>(character));
            }
            m_lines.push_back(std::move(bytes));
        }
    }

    std::size_t CountMatches() override {
        std::size_t count = 0;
        for (const std::string& line : m_lines) {
            count += Match(line) ? 1 : 0;
        }
        return count;
    }

    std::optional<MatchSpans> Find(std::size_t line) override {
        const std::string& text = m_lines[line];
        if (!Match(text)) {
            return std::nullopt;
        }
        MatchSpans spans;
        for (const re2::StringPiece& group : m_groups) {
            spans.push_back({group.data() - text.data(), group.data() + group.size() - text.data()});
        }
        return spans;
    }

private:
    static RE2::Options Options() {
        RE2::Options options;
        options.set_encoding(RE2::Options::EncodingLatin1);
        options.set_case_sensitive(false);
        options.set_dot_nl(true);
        return options;
    }

    bool Match(const std::string& line) {
        return m_regex.Match(line, 0, line.size(), RE2::UNANCHORED, m_groups.data(),
                             static_cast<int>(m_groups.size()));
    }

    RE2 m_regex;
    std::vector<re2::StringPiece> m_groups;
    std::vector<std::string> m_lines;
};

// Boost.Regex and std::wregex have the same interface.
template <class TRegex, class TResults, bool (*search)(const std::wstring&, TResults&, const TRegex&)>
class CIteratorRegex : public IMatcher {
public:
    explicit CIteratorRegex(const BenchPattern& pattern) {
        const std::string text = pattern.theirs;
        m_regex.assign(std::wstring(text.begin(), text.end()),
                       TRegex::ECMAScript | TRegex::icase | TRegex::optimize);
    }

    void SetLines(const Lines& lines) override { m_lines = lines; }

    std::size_t CountMatches() override {
        std::size_t count = 0;
        for (const std::wstring& line : m_lines) {
            count += search(line, m_results, m_regex) ? 1 : 0;
        }
        return count;
    }

    std::optional<MatchSpans> Find(std::size_t line) override {
        const std::wstring& text = m_lines[line];
        if (!search(text, m_results, m_regex)) {
            return std::nullopt;
        }
        MatchSpans spans;
        for (const auto& group : m_results) {
            spans.push_back({group.first - text.begin(), group.second - text.begin()});
        }
        return spans;
    }

private:
    TRegex m_regex;
    TResults m_results;
    Lines m_lines;
};

bool SearchBoost(const std::wstring& line, boost::wsmatch& results, const boost::wregex& regex) {
    return boost::regex_search(line, results, regex);
}

bool SearchStd(const std::wstring& line, std::wsmatch& results, const std::wregex& regex) {
    return std::regex_search(line, results, regex);
}

using CBoost = CIteratorRegex<boost::wregex, boost::wsmatch, SearchBoost>;
using CStd = CIteratorRegex<std::wregex, std::wsmatch, SearchStd>;

template <class T, class... TMore>
std::unique_ptr<IMatcher> Make(const BenchPattern& pattern, TMore... more) {
    return std::make_unique<T>(pattern, more...);
}

std::unique_ptr<IMatcher> MakeInterpreted(const BenchPattern& pattern) {
    return Make<CPcre2>(pattern, false);
}

std::unique_ptr<IMatcher> MakeCompiled(const BenchPattern& pattern) {
    return Make<CPcre2>(pattern, true);
}

}  // namespace

const std::vector<MatcherKind>& MatcherKinds() {
    static const std::vector<MatcherKind> kinds = {
        {"ours", false, Make<COurs>},
        {"PCRE2 JIT", true, MakeCompiled},
        {"PCRE2 interpreted", false, MakeInterpreted},
        {"RE2", false, Make<CRe2>},
        {"Boost.Regex", false, Make<CBoost>},
        {"std::wregex", false, Make<CStd>},
    };
    return kinds;
}

}  // namespace tavrin::benchmarks
