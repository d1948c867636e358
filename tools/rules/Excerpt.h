// A piece of a file's line as it is shown below a finding. Places in it count characters.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

struct SExcerpt {
    std::string text;        // UTF-8, without control characters
    std::size_t start = 0;   // the offending text: its first character, counted from 0,
    std::size_t length = 0;  // and how many of its characters the excerpt holds
};

// The excerpt around the characters [start, start + length) of a line. A long line is cut, so that what is
// kept of it for a finding is bounded. Characters that would not show or would move the underline stand as
// their pictures: a tab as U+2409, a null character as U+2400.
SExcerpt MakeExcerpt(std::wstring_view line, std::size_t start, std::size_t length);

// Text for a message: as an excerpt, in apostrophes, cut with an ellipsis where it is long.
std::string Quoted(std::wstring_view text);
