#include "tools/texts/StringScript.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstdint>
#include <optional>
#include <utility>

#include "encoding/Encoding.h"
#include "tools/texts/CodePage.h"
#include "tools/texts/LanguageName.h"
#include "tools/texts/LineError.h"

namespace tavrin::tools {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr unsigned kHighestNumber = 0xFFFF;

enum EToken { TK_END, TK_WORD, TK_LITERAL, TK_SIGN };

struct Token {
    EToken kind = TK_END;
    std::string_view text;  // a literal with its prefix and quotes
    std::size_t line = 0;
    std::size_t column = 0;
    std::size_t offset = 0;
    unsigned codePage = kWesternEuropean;  // at this position
};

bool IsWordCharacter(char character) {
    return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_';
}

// Words of a script are read in either case.
bool IsWord(const Token& token, std::string_view word) {
    return token.kind == TK_WORD &&
           std::equal(token.text.begin(), token.text.end(), word.begin(), word.end(),
                      [](char a, char b) { return std::toupper(static_cast<unsigned char>(a)) == b; });
}

bool IsSign(const Token& token, char sign) {
    return token.kind == TK_SIGN && token.text.front() == sign;
}

bool IsOpening(const Token& token) {
    return IsSign(token, '{') || IsWord(token, "BEGIN");
}

bool IsClosing(const Token& token) {
    return IsSign(token, '}') || IsWord(token, "END");
}

// A whole number in the syntax of resource compilers; nothing when the word is not a number or too large.
std::optional<unsigned> NumberOf(std::string_view word) {
    int base = 10;
    if (word.size() > 1 && word.front() == '0') {
        const bool isHex = word[1] == 'x' || word[1] == 'X';
        base = isHex ? 16 : 8;
        word.remove_prefix(isHex ? 2 : 1);
    }
    unsigned value = 0;
    const auto result = std::from_chars(word.data(), word.data() + word.size(), value, base);
    const bool isWhole = result.ec == std::errc() && result.ptr == word.data() + word.size();
    return isWhole ? std::optional(value) : std::nullopt;
}

// Splits a script into tokens and tracks its code page.
class CLexer {
public:
    CLexer(const std::string& name, std::string_view bytes) : m_name(name), m_bytes(bytes) {
        m_fixedCodePage = bytes.substr(0, kUtf8Mark.size()) == kUtf8Mark;
        if (m_fixedCodePage) {
            m_at = m_lineStart = kUtf8Mark.size();
            m_codePage = kUtf8;
        }
    }

    Token Next() {
        SkipBlanks();
        Token token;
        token.line = m_line;
        token.offset = m_at;
        token.column = m_at - m_lineStart + 1;
        token.codePage = m_codePage;
        if (m_at == m_bytes.size()) {
            return token;
        }
        if (Peek() == '"' || (std::toupper(static_cast<unsigned char>(Peek())) == 'L' && Peek(1) == '"')) {
            token.kind = TK_LITERAL;
            SkipLiteral();
        } else if (IsWordCharacter(Peek())) {
            token.kind = TK_WORD;
            while (IsWordCharacter(Peek())) {
                ++m_at;
            }
        } else {
            token.kind = TK_SIGN;
            ++m_at;
        }
        token.text = m_bytes.substr(token.offset, m_at - token.offset);
        return token;
    }

    unsigned CodePage() const { return m_codePage; }

private:
    char Peek(std::size_t ahead = 0) const {
        return m_at + ahead < m_bytes.size() ? m_bytes[m_at + ahead] : '\0';
    }

    bool StartsWith(std::string_view text) const { return m_bytes.substr(m_at, text.size()) == text; }

    void SkipBlanks() {
        while (m_at < m_bytes.size()) {
            if (StartsWith("//")) {
                SkipLine();
            } else if (StartsWith("/*")) {
                SkipComment();
            } else if (Peek() == '#' && m_lineIsBlank) {
                TakeDirective();
            } else if (std::isspace(static_cast<unsigned char>(Peek())) != 0 || Peek() == '\0') {
                Advance();
            } else {
                m_lineIsBlank = false;
                return;
            }
        }
    }

    // At the line feed.
    void BeginLine() {
        ++m_line;
        m_lineStart = m_at + 1;
    }

    void Advance() {
        if (Peek() == '\n') {
            BeginLine();
            m_lineIsBlank = true;
        }
        ++m_at;
    }

    // To the line feed.
    void SkipLine() { m_at = std::min(m_bytes.find('\n', m_at), m_bytes.size()); }

    void SkipComment() {
        const std::size_t start = m_line;
        const std::size_t end = m_bytes.find("*/", m_at + 2);
        if (end == std::string_view::npos) {
            throw LineError(m_name, start, "the comment that begins here is not closed with */");
        }
        while (m_at < end + 2) {
            Advance();
        }
    }

    // A backslash at the end of a line continues the directive.
    void TakeDirective() {
        const std::size_t start = m_at;
        for (;;) {
            SkipLine();
            std::string_view line = m_bytes.substr(start, m_at - start);
            if (!line.empty() && line.back() == '\r') {
                line.remove_suffix(1);
            }
            if (m_at == m_bytes.size() || line.empty() || line.back() != '\\') {
                break;
            }
            Advance();
        }
        m_lineIsBlank = true;
        TakeCodePage(m_bytes.substr(start, m_at - start));
    }

    void TakeCodePage(std::string_view directive) {
        std::string words;
        for (const char character : directive) {
            if (std::isspace(static_cast<unsigned char>(character)) == 0) {
                words += character;
            }
        }
        constexpr std::string_view kStart = "#pragmacode_page(";
        if (words.compare(0, kStart.size(), kStart) != 0) {
            return;
        }
        const std::string page = words.substr(kStart.size(), words.find(')') - kStart.size());
        const std::optional<unsigned> number = NumberOf(page);
        if (!number && page != "DEFAULT" && page != "default") {
            throw LineError(m_name, m_line,
                            "'" + page + "' is not a code page: write its number, such as 65001");
        }
        if (!m_fixedCodePage) {
            m_codePage = number.value_or(kWesternEuropean);
        }
    }

    void SkipLiteral() {
        const std::size_t start = m_line;
        for (m_at += Peek() == '"' ? 1 : 2;; ++m_at) {
            const char character = Peek();
            if (m_at == m_bytes.size() || character == '\n') {
                throw LineError(m_name, start, "the text that begins here is not closed with a quote");
            }
            if (character == '"' && Peek(1) != '"') {
                ++m_at;
                return;
            }
            if (character == '"') {
                ++m_at;
            } else if (character == '\\' && m_at + 1 < m_bytes.size()) {
                m_at += Peek(1) == '\r' && Peek(2) == '\n' ? 2 : 1;
                if (Peek() == '\n') {
                    BeginLine();
                }
            }
        }
    }

    const std::string& m_name;
    std::string_view m_bytes;
    std::size_t m_at = 0;
    std::size_t m_line = 1;
    std::size_t m_lineStart = 0;
    unsigned m_codePage = kWesternEuropean;
    bool m_fixedCodePage = false;
    bool m_lineIsBlank = true;  // so far, except for comments: a directive may begin
};

// The text of one literal.
class CLiteral {
public:
    CLiteral(const std::string& name, const Token& token)
        : m_name(name), m_token(token), m_isWide(token.text.front() != '"') {
        m_rest = token.text.substr(m_isWide ? 2 : 1);
        m_rest.remove_suffix(1);
    }

    std::wstring Text() {
        while (!m_rest.empty()) {
            const char character = Take();
            if (character == '"') {
                Take();  // the second of a pair
                m_bytes += '"';
            } else if (character == '\\' && !m_rest.empty()) {
                TakeEscape(Take());
            } else {
                m_bytes += character;
            }
        }
        Flush();
        return std::move(m_text);
    }

private:
    char Take() {
        const char character = m_rest.front();
        m_rest.remove_prefix(1);
        return character;
    }

    void TakeEscape(char letter) {
        switch (letter) {
            case 'a':  // a backspace in resource scripts, not a bell
                m_bytes += '\b';
                break;
            case 'n':
                m_bytes += '\n';
                break;
            case 'r':
                m_bytes += '\r';
                break;
            case 't':
                m_bytes += '\t';
                break;
            case '\\':
                m_bytes += '\\';
                break;
            case '"':
                m_bytes += '"';
                break;
            case '\r':
                if (!m_rest.empty() && m_rest.front() == '\n') {
                    Take();
                }
                break;
            case '\n':
                break;
            case 'x':
            case 'X':
                AppendCode(TakeDigits(m_isWide ? 4 : 2, 16, ""));
                break;
            default:
                if (letter >= '0' && letter <= '7') {
                    AppendCode(TakeDigits(2, 8, {&letter, 1}));
                } else {
                    m_bytes += '\\';
                    m_bytes += letter;
                }
        }
    }

    unsigned TakeDigits(std::size_t most, int base, std::string_view first) {
        std::string digits(first);
        for (std::size_t i = 0; i < most && !m_rest.empty() && IsDigit(m_rest.front(), base); ++i) {
            digits += Take();
        }
        unsigned value = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
        return value;
    }

    static bool IsDigit(char character, int base) {
        return base == 16 ? std::isxdigit(static_cast<unsigned char>(character)) != 0
                          : character >= '0' && character <= '7';
    }

    // A UTF-16 unit after the L prefix, otherwise a byte of the code page.
    void AppendCode(unsigned code) {
        if (!m_isWide) {
            m_bytes += static_cast<char>(code);
            return;
        }
        Flush();
        m_text += static_cast<wchar_t>(code);
    }

    void Flush() {
        const std::optional<std::wstring> text = DecodeText(m_bytes, m_token.codePage);
        if (!text) {
            throw LineError(m_name, m_token.line,
                            "the text contains bytes that are invalid in code page " +
                                std::to_string(m_token.codePage) +
                                ": save the script as UTF-8 and put #pragma code_page(65001) at its start");
        }
        m_text += *text;
        m_bytes.clear();
    }

    const std::string& m_name;
    const Token& m_token;
    bool m_isWide;
    std::string_view m_rest;
    std::string m_bytes;  // not decoded yet
    std::wstring m_text;
};

struct ScriptLanguage {
    std::string name;  // empty before any LANGUAGE
    std::optional<unsigned> id = kDefaultLanguage;
};

class CParser {
public:
    CParser(const std::string& name, std::string_view bytes) : m_name(name), m_lexer(name, bytes) {}

    StringScript Parse() {
        int depth = 0;          // of nested BEGIN and END of other resources
        std::size_t start = 0;  // of the outermost of them
        for (Advance(); m_token.kind != TK_END;) {
            if (depth == 0 && IsWord(m_token, "LANGUAGE")) {
                m_language = TakeLanguage();
            } else if (depth == 0 && IsWord(m_token, "STRINGTABLE")) {
                TakeTable();
            } else {
                start = depth == 0 ? m_token.line : start;
                depth += IsOpening(m_token) ? 1 : 0;
                depth -= IsClosing(m_token) && depth > 0 ? 1 : 0;
                Advance();
            }
        }
        if (depth > 0) {
            throw LineError(m_name, start, "the block that begins here is not closed with END");
        }
        m_script.codePage = m_lexer.CodePage();
        return std::move(m_script);
    }

private:
    void Advance() { m_token = m_lexer.Next(); }

    [[noreturn]] void Fail(const std::string& message) const {
        throw LineError(m_name, m_token.line, message);
    }

    ScriptLanguage TakeLanguage() {
        Advance();
        const std::string_view primary = TakeWord();
        if (!IsSign(m_token, ',')) {
            Fail("a comma is expected after the language");
        }
        Advance();
        const std::string_view secondary = TakeWord();
        const std::optional<unsigned> major = NumberOf(primary);
        const std::optional<unsigned> minor = NumberOf(secondary);
        ScriptLanguage language{std::string(primary) + ", " + std::string(secondary), std::nullopt};
        if (major && minor) {
            language.name = LanguageName(LanguageId(*major, *minor));
        }
        const std::optional<unsigned> high = major ? major : PrimaryLanguage(primary);
        const std::optional<unsigned> low = minor ? minor : Sublanguage(secondary);
        if (high && low) {
            language.id = LanguageId(*high, *low) & 0xFFFFU;
        }
        return language;
    }

    std::string_view TakeWord() {
        if (m_token.kind != TK_WORD) {
            Fail("a language is expected, such as LANGUAGE LANG_ITALIAN, SUBLANG_ITALIAN");
        }
        const std::string_view word = m_token.text;
        Advance();
        return word;
    }

    void TakeTable() {
        const std::size_t start = m_token.line;
        ScriptLanguage language = m_language;
        Advance();
        while (!IsOpening(m_token)) {
            if (IsWord(m_token, "LANGUAGE")) {
                language = TakeLanguage();
                continue;
            }
            if (m_token.kind != TK_WORD && !IsSign(m_token, ',')) {
                Fail("BEGIN or { is expected after STRINGTABLE");
            }
            Advance();
        }
        Advance();
        while (!IsClosing(m_token)) {
            if (m_token.kind == TK_END) {
                throw LineError(m_name, start, "the string table that begins here is not closed with END");
            }
            TakeText(language);
        }
        m_script.tables.push_back({language.name, m_token.codePage, m_token.offset});
        Advance();
    }

    void TakeText(const ScriptLanguage& language) {
        const std::optional<unsigned> number =
            m_token.kind == TK_WORD ? NumberOf(m_token.text) : std::nullopt;
        if (!number || *number > kHighestNumber) {
            Fail("expected the number of a text, 0 to " + std::to_string(kHighestNumber) + ", not '" +
                 std::string(m_token.text) + "'");
        }
        ScriptText text;
        text.number = *number;
        text.language = language.name;
        text.languageId = language.id;
        text.line = m_token.line;
        text.column = m_token.column;
        Advance();
        if (IsSign(m_token, ',')) {
            Advance();
        }
        if (m_token.kind != TK_LITERAL) {
            Fail("text " + std::to_string(*number) + " has no text in quotes after its number");
        }
        for (; m_token.kind == TK_LITERAL; Advance()) {
            text.text += CLiteral(m_name, m_token).Text();
        }
        m_script.texts.push_back(std::move(text));
    }

    const std::string& m_name;
    CLexer m_lexer;
    Token m_token;
    ScriptLanguage m_language;
    StringScript m_script;
};

// Converts UTF-16 to UTF-8 with a byte order mark.
std::string Utf8Script(std::string_view units) {
    std::wstring text;
    text.reserve(units.size() / 2);
    for (std::size_t i = 0; i + 1 < units.size(); i += 2) {
        const auto low = static_cast<unsigned char>(units[i]);
        const auto high = static_cast<unsigned char>(units[i + 1]);
        text += static_cast<wchar_t>(low | high << 8);
    }
    return std::string(kUtf8Mark) + encoding::EncodeUtf8(text);
}

}  // namespace

StringScript ReadStringScript(const std::string& name, std::string_view bytes) {
    if (bytes.substr(0, kUtf16Mark.size()) != kUtf16Mark) {
        return CParser(name, bytes).Parse();
    }
    const std::string script = Utf8Script(bytes.substr(kUtf16Mark.size()));
    StringScript result = CParser(name, script).Parse();
    result.isUtf16 = true;
    return result;
}

}  // namespace tavrin::tools
