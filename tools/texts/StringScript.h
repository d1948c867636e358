// The string tables of a resource script: the source of a companion resource module.
//
// What is understood, as the resource compilers understand it:
//
//     #pragma code_page(65001)               the encoding of the texts that follow: 65001 or 1252, which is
//                                            also the one of a script that names none
//     LANGUAGE LANG_ITALIAN, SUBLANG_ITALIAN the language of the tables that follow; inside a table's head
//                                            that of the one table
//     STRINGTABLE BEGIN ... END              BEGIN and END or braces
//         1501 "Leaf \"width\"", 0x5DE L"b"  a number (decimal, 0x, or octal behind a 0), perhaps a comma,
//         and
//     END                                    one literal or several that are put together
//
// In a literal "" is one quote, and the escapes are \" \\ \n \r \t \a (which is a backspace there), three
// octal digits, \x with two digits or, behind the L prefix, with four; a backslash before a line's end goes
// on on the next line, and one before anything else stands for itself. Comments, all other resources and all
// other directives are passed over; so both sides of an #if count, and names for numbers are not known.
//
// A script in UTF-16 with its mark is read too, one with the mark of UTF-8 is in UTF-8.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

struct SScriptText {
    unsigned number = 0;
    std::wstring text;       // UTF-16 units
    std::string language;    // empty before any LANGUAGE
    std::size_t line = 0;    // of its number, from 1
    std::size_t column = 0;  // in bytes, from 1
};

// A string table, as far as one must know it to add a text to it.
struct SScriptTable {
    std::string language;
    unsigned codePage = 0;
    std::size_t end = 0;  // where its END or brace begins, in bytes of the script
};

struct SStringScript {
    std::vector<SScriptText> texts;
    std::vector<SScriptTable> tables;
    unsigned codePage = 0;  // of texts that are added at the script's end
    bool isUtf16 = false;   // then the places are not those of the file's bytes
};

// Reads a script. `name` stands for it in messages. Throws CToolError for what is no well-formed string table
// and for bytes that are no text of their code page.
SStringScript ReadStringScript(const std::string& name, std::string_view bytes);
