#include "tools/texts/ScriptEdit.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <optional>

#include "tools/files/Files.h"
#include "tools/texts/CodePage.h"
#include "tools/texts/StringScript.h"

namespace tavrin::tools {

namespace {

// After the L prefix all characters beyond ASCII are written as escapes: the resource compilers treat other
// bytes differently.
std::string EscapedLiteral(const std::wstring& text) {
    std::string literal = "L\"";
    for (const wchar_t character : text) {
        if (character < 0x20 || character >= 0x7F) {
            std::array<char, 16> escape{};
            std::snprintf(escape.data(), escape.size(), "\\x%04X",
                          static_cast<unsigned>(character) & 0xFFFFU);
            literal += escape.data();
        } else {
            literal += character == L'"'    ? "\"\""
                       : character == L'\\' ? "\\\\"
                                            : std::string(1, static_cast<char>(character));
        }
    }
    return literal + "\"";
}

std::string Literal(const std::wstring& text, unsigned codePage) {
    std::string literal = "\"";
    for (const wchar_t character : text) {
        const std::optional<std::string> bytes = EncodeCharacter(static_cast<char32_t>(character), codePage);
        if (!bytes || character < 0x20 || (character >= 0x7F && character < 0xA0)) {
            return EscapedLiteral(text);
        }
        literal += character == L'"' ? "\"\"" : character == L'\\' ? "\\\\" : *bytes;
    }
    return literal + "\"";
}

std::string LineEndOf(std::string_view bytes) {
    const std::size_t end = bytes.find('\n');
    return end != std::string_view::npos && end > 0 && bytes[end - 1] == '\r' ? "\r\n" : "\n";
}

std::vector<std::string> Entries(const std::vector<NewText>& texts, unsigned codePage,
                                 const std::string& lineEnd) {
    std::vector<std::string> entries;
    entries.reserve(texts.size());
    for (const NewText& text : texts) {
        entries.push_back("    " + std::to_string(text.number) + " " + Literal(text.text, codePage) +
                          lineEnd);
    }
    return entries;
}

std::vector<std::string> NewTable(const std::vector<NewText>& texts, unsigned codePage,
                                  const std::string& lineEnd) {
    std::vector<std::string> lines = {"STRINGTABLE" + lineEnd, "BEGIN" + lineEnd};
    const std::vector<std::string> entries = Entries(texts, codePage, lineEnd);
    lines.insert(lines.end(), entries.begin(), entries.end());
    lines.push_back("END" + lineEnd);
    return lines;
}

// The edit that adds a table after the last line. The empty line before it also ends a directive that the
// last line would continue.
LineEdit AppendTable(std::vector<std::string> table, const std::vector<std::string>& lines,
                     const std::string& lineEnd) {
    if (!lines.empty()) {
        table.insert(table.begin(), lineEnd);
    }
    if (!lines.empty() && lines.back().back() != '\n') {
        table.insert(table.begin(), lines.back() + lineEnd);
        return {lines.size() - 1, 1, std::move(table)};
    }
    return {lines.size(), 0, std::move(table)};
}

// The edit that adds entries before the table's END, which usually begins its line.
LineEdit ExtendTable(std::size_t end, std::vector<std::string> entries, const std::vector<std::string>& lines,
                     const std::string& lineEnd) {
    std::size_t line = 0;
    for (; end >= lines[line].size(); ++line) {
        end -= lines[line].size();
    }
    const std::string before = lines[line].substr(0, end);
    if (before.find_first_not_of(" \t") == std::string::npos) {
        return {line, 0, std::move(entries)};
    }
    entries.insert(entries.begin(), before + lineEnd);
    entries.push_back(lines[line].substr(end));
    return {line, 1, std::move(entries)};
}

}  // namespace

std::vector<std::string> LinesWithEnds(std::string_view bytes) {
    std::vector<std::string> lines;
    while (!bytes.empty()) {
        const std::size_t length = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
        lines.emplace_back(bytes.substr(0, length));
        bytes.remove_prefix(length);
    }
    return lines;
}

std::vector<LineEdit> EditsOfScript(const std::string& name, std::string_view bytes,
                                    const std::vector<NewText>& texts) {
    const StringScript script = ReadStringScript(name, bytes);
    if (script.isUtf16) {
        throw CToolError(name +
                         ": texts are not added to a script in UTF-16: save it as UTF-8, with #pragma "
                         "code_page(65001) at its start");
    }
    if (texts.empty()) {
        return {};
    }
    const std::vector<std::string> lines = LinesWithEnds(bytes);
    const std::string lineEnd = LineEndOf(bytes);
    const ScriptTable* table = nullptr;
    for (const ScriptTable& candidate : script.tables) {
        if (candidate.language == script.tables.front().language) {
            table = &candidate;
        }
    }
    if (table == nullptr) {
        return {AppendTable(NewTable(texts, script.codePage, lineEnd), lines, lineEnd)};
    }
    return {ExtendTable(table->end, Entries(texts, table->codePage, lineEnd), lines, lineEnd)};
}

std::string NewScript(const std::string& templateName, const std::vector<NewText>& texts) {
    std::string script = "// Texts of " + templateName +
                         ": string table of the companion module TavrinRes.dll.\n"
                         "#include <windows.h>\n\n"
                         "#pragma code_page(65001)\n"
                         "LANGUAGE LANG_NEUTRAL, SUBLANG_NEUTRAL\n\n";
    for (const std::string& line : NewTable(texts, kUtf8, "\n")) {
        script += line;
    }
    return script;
}

std::string Edited(const std::vector<std::string>& lines, const std::vector<LineEdit>& edits) {
    std::string bytes;
    std::size_t line = 0;
    for (const LineEdit& edit : edits) {
        for (; line < edit.line; ++line) {
            bytes += lines[line];
        }
        for (const std::string& added : edit.added) {
            bytes += added;
        }
        line += edit.removed;
    }
    for (; line < lines.size(); ++line) {
        bytes += lines[line];
    }
    return bytes;
}

}  // namespace tavrin::tools
