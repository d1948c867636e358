// Changes of a file in the form that patch takes. Whoever changes a file knows what is changed, so nothing is
// searched for here.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

// Lines that take the place of others: `removed` lines from `line` on, counted from 0; perhaps none, then the
// added ones stand in front of it.
struct SLineEdit {
    std::size_t line = 0;
    std::size_t removed = 0;
    std::vector<std::string> added;
};

// The edits that make `after` out of `before`, which has the same number of lines.
std::vector<SLineEdit> EditsBetween(const std::vector<std::string>& before,
                                    const std::vector<std::string>& after);

// The edits, in ascending order and not overlapping, as a unified diff with three lines of context; empty
// when there are none. The lines, those added too, are bytes with their line ends; the last may lack one.
std::string UnifiedDiff(const std::string& oldName, const std::string& newName,
                        const std::vector<std::string>& lines, const std::vector<SLineEdit>& edits);
