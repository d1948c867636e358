// The string tables of a resource script: the source of a companion resource module.
//
// The supported syntax, with the meaning that it has for resource compilers:
//
//     #pragma code_page(65001)               the encoding of the texts that follow: 65001 or 1252, which is
//                                            also the one of a script that names none
//     LANGUAGE LANG_ITALIAN, SUBLANG_ITALIAN the language of the tables that follow; inside a table's head
//                                            that of the one table
//     STRINGTABLE BEGIN ... END              BEGIN and END or braces
//         1501 "Leaf \"width\"", 0x5DE L"b"  a number (decimal, 0x, or octal after a 0), an optional
//     END                                    comma, and one or more literals, which are joined
//
// In a literal "" is one quote, and the escapes are \" \\ \n \r \t \a (which is a backspace there), three
// octal digits, \x with two digits or, after the L prefix, with four; a backslash at the end of a line
// continues the literal on the next line, and any other backslash is an ordinary character. Comments, other
// resources and other directives are skipped; so both branches of an #if count, and names for numbers are not
// supported.
//
// A byte order mark of UTF-16 or UTF-8 gives the encoding of the script.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/texts/LanguageId.h"

namespace tavrin::tools {

struct ScriptText {
    unsigned number = 0;
    std::wstring text;                                      // UTF-16 units
    std::string language;                                   // empty before any LANGUAGE
    std::optional<unsigned> languageId = kDefaultLanguage;  // nothing for an unknown name
    std::size_t line = 0;                                   // of its number, from 1
    std::size_t column = 0;                                 // in bytes, from 1
};

// A string table, as far as needed to add texts to it.
struct ScriptTable {
    std::string language;
    unsigned codePage = 0;
    std::size_t end = 0;  // where its END or brace begins, in bytes of the script
};

struct StringScript {
    std::vector<ScriptText> texts;
    std::vector<ScriptTable> tables;
    unsigned codePage = 0;  // of texts that are added at the script's end
    bool isUtf16 = false;   // then the offsets are not those of the file
};

// Parses a script. `name` is its name in messages. Throws CToolError for syntax errors and for bytes that are
// invalid in their code page.
StringScript ReadStringScript(const std::string& name, std::string_view bytes);

}  // namespace tavrin::tools
