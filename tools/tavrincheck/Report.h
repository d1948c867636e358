// The output formats of findings. All are UTF-8 and end with a line end.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "tools/rules/Finding.h"

namespace tavrin::tools {

// One line per finding in the format of compiler messages, then the line of the file with the offending text
// underlined:
//
//     door.TXT:4:17: error: the type letter 'd' is lower case [type-small-letter]
//         $1 = "<<1501>>"d 900
//                        ^
//
// A finding about a whole file has no line and column. Empty without findings.
std::string TextReport(std::span<const Finding> findings);

// One object: "findings", a list of objects with file, line, column, length (0 where they do not apply),
// severity, rule and message; "errors", "warnings" and "notes", their numbers.
std::string JsonReport(std::span<const Finding> findings);

// A log in the static analysis results interchange format 2.1.0. `rules` are all rules, `version` is the
// program's.
std::string SarifReport(std::span<const Finding> findings, std::span<const Rule* const> rules,
                        std::string_view version);

}  // namespace tavrin::tools
