// Findings: a position in a file, the rule that it breaks and the consequence.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "tools/rules/Excerpt.h"

namespace tavrin::tools {

enum ESeverity {
    SV_NOTE,     // worth knowing
    SV_WARNING,  // probably a mistake
    SV_ERROR,    // the module misreads or loses something
};

std::string_view SeverityName(ESeverity severity);

// A rule. Its texts are UTF-8; explanation and example are lines, the last without a line end.
struct Rule {
    std::string_view id;  // lower case letters and hyphens; never changes
    ESeverity severity;
    std::string_view title;        // a clause without a full stop
    std::string_view explanation;  // the effect, and what to write instead
    std::string_view example;      // lines that break it
};

// Characters are bytes in an item's files, and units of UTF-16 in a routine or a script.
struct Finding {
    const Rule* rule = nullptr;  // one of the table, which is static
    std::string file;            // as the user named it, UTF-8
    std::size_t line = 0;        // from 1; 0 when the finding is about the file as a whole
    std::size_t column = 0;      // in characters from 1; 0 together with the line
    std::size_t length = 0;      // of the offending text in characters; 0 where something is missing
    std::string message;         // UTF-8, one line
    Excerpt excerpt;             // empty for findings about a whole file
};

}  // namespace tavrin::tools
