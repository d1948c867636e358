// The part of a line that is shown below a finding. Positions count characters.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tavrin::tools {

struct Excerpt {
    std::string text;        // UTF-8, without control characters
    std::size_t start = 0;   // of the offending text in the excerpt, from 0
    std::size_t length = 0;  // of the offending text, as far as it is in the excerpt
};

// The excerpt around the characters [start, start + length) of a line. Long lines are truncated. Control
// characters are replaced by their symbols, a tab by U+2409, a null character by U+2400, so that the
// underline fits.
Excerpt MakeExcerpt(std::wstring_view line, std::size_t start, std::size_t length);

// Text for a message: as an excerpt, in apostrophes; long text ends with an ellipsis.
std::string Quoted(std::wstring_view text);

}  // namespace tavrin::tools
