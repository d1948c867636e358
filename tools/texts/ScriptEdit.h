// Adds texts to a resource script. All other bytes of the script stay the same.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/files/UnifiedDiff.h"

namespace tavrin::tools {

struct NewText {
    unsigned number = 0;
    std::wstring text;
};

// A file's bytes as lines with their line ends.
std::vector<std::string> LinesWithEnds(std::string_view bytes);

// The edits that add the texts to the end of the last table in the language of the script's first table, or
// add a table if there is none. Uses the script's code page and line ends; other characters are written as
// escapes. Throws CToolError when the script cannot be read or is in UTF-16.
std::vector<LineEdit> EditsOfScript(const std::string& name, std::string_view bytes,
                                    const std::vector<NewText>& texts);

// A new script with the texts of the template.
std::string NewScript(const std::string& templateName, const std::vector<NewText>& texts);

// The lines after the edits.
std::string Edited(const std::vector<std::string>& lines, const std::vector<LineEdit>& edits);

}  // namespace tavrin::tools
