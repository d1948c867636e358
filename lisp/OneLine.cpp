#include "lisp/OneLine.h"

namespace tavrin::lisp {

namespace {

bool IsLineEnd(wchar_t c) {
    return c == L'\n' || c == L'\r';
}

// Takes the text apart from the front.
class CJoiner {
public:
    explicit CJoiner(std::wstring_view rest) : m_rest(rest) {}

    std::wstring Join() {
        while (!m_rest.empty()) {
            if (m_rest[0] == L'"') {
                JoinText();
            } else if (m_rest[0] == L';') {
                SkipComment();
            } else {
                TakeOutside();
            }
        }
        const std::size_t end = m_joined.find_last_not_of(L' ');
        m_joined.resize(end != std::wstring::npos ? end + 1 : 0);
        return std::move(m_joined);
    }

private:
    void TakeOutside() {
        const wchar_t c = m_rest[0];
        if (c == L' ' || c == L'\t' || IsLineEnd(c)) {
            Replace(1);
        } else {
            Take();
        }
    }

    void SkipComment() {
        const bool spansLines = m_rest.starts_with(L";|");
        const std::size_t end = spansLines ? m_rest.find(L"|;", 2) : m_rest.find(L'\n');
        Replace(end == std::wstring_view::npos ? m_rest.size() : end + (spansLines ? 2 : 0));
    }

    void JoinText() {
        Take();
        for (bool isEscaped = false; !m_rest.empty();) {
            const wchar_t c = m_rest[0];
            if (IsLineEnd(c)) {
                m_joined += c == L'\n' ? L"\\n" : L"\\r";
                m_rest.remove_prefix(1);
            } else {
                Take();
            }
            if (c == L'"' && !isEscaped) {
                return;
            }
            isEscaped = c == L'\\' && !isEscaped;
        }
    }

    void Take() {
        m_joined += m_rest[0];
        m_rest.remove_prefix(1);
    }

    // Replaces so many characters by a blank, but never adds a second one, since lines are indented.
    void Replace(std::size_t count) {
        m_rest.remove_prefix(count);
        if (!m_joined.empty() && m_joined.back() != L' ') {
            m_joined += L' ';
        }
    }

    std::wstring_view m_rest;
    std::wstring m_joined;
};

}  // namespace

std::wstring OnOneLine(std::wstring_view lisp) {
    return CJoiner(lisp).Join();
}

}  // namespace tavrin::lisp
