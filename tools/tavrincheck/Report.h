// The forms in which findings are printed. All give UTF-8 that ends with a line end.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "tools/rules/Finding.h"

// A line per finding as compilers print it, then the line of the file with the offending text underlined:
//
//     door.TXT:4:17: error: the type letter 'd' is a small one [type-small-letter]
//         $1 = "<<1501>>"d 900
//                        ^
//
// A finding about a whole file has no line and column. Nothing for no findings.
std::string TextReport(std::span<const SFinding> findings);

// One object: "findings", a list of objects with file, line, column, length (0 where they do not apply),
// severity, rule and message; "errors", "warnings" and "notes", their numbers.
std::string JsonReport(std::span<const SFinding> findings);

// A log in the static analysis results interchange format 2.1.0. Its rules are those given, all that the
// program knows. `version` is the program's.
std::string SarifReport(std::span<const SFinding> findings, std::span<const SRule* const> rules,
                        std::string_view version);
