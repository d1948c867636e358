// What a check found: a place in a file, the rule that it breaks and what that means there.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "tools/rules/Excerpt.h"

enum ESeverity {
    SV_NOTE,     // worth knowing
    SV_WARNING,  // likely not meant
    SV_ERROR,    // the module misreads or loses something
};

std::string_view SeverityName(ESeverity severity);

// A rule. Its texts are UTF-8, its explanation and its example lines without a line end behind the last.
struct SRule {
    std::string_view id;  // small letters and hyphens; stays the same for good
    ESeverity severity;
    std::string_view title;        // a clause without a full stop
    std::string_view explanation;  // what happens, and what to write instead
    std::string_view example;      // lines that break it
};

// Characters are bytes in an item's files, and units of UTF-16 in a routine or a script.
struct SFinding {
    const SRule* rule = nullptr;  // one of the table, which lives as long as the program
    std::string file;             // as the user named it, UTF-8
    std::size_t line = 0;         // from 1; 0 when the finding is about the file as a whole
    std::size_t column = 0;       // in characters from 1; 0 together with the line
    std::size_t length = 0;       // of the offending text in characters; may be 0 where something is missing
    std::string message;          // UTF-8, one line
    SExcerpt excerpt;             // empty when the line is not known
};
