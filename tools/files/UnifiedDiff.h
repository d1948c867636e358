// Known changes of a file in the format of patch. Differences are not searched for.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tavrin::tools {

// Replaces `removed` lines, from line `line` on (counted from 0), by the added lines. If `removed` is 0, the
// added lines are inserted before that line.
struct LineEdit {
    std::size_t line = 0;
    std::size_t removed = 0;
    std::vector<std::string> added;
};

// The edits that turn `before` into `after`, which must have the same number of lines.
std::vector<LineEdit> EditsBetween(const std::vector<std::string>& before,
                                   const std::vector<std::string>& after);

// The edits, in ascending order and not overlapping, as a unified diff with three lines of context; empty
// when there are none. All lines include their line ends; the last one may have none.
std::string UnifiedDiff(const std::string& oldName, const std::string& newName,
                        const std::vector<std::string>& lines, const std::vector<LineEdit>& edits);

}  // namespace tavrin::tools
