// Adds texts to a resource script, which otherwise stays byte for byte as it is.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/files/UnifiedDiff.h"

struct SNewText {
    unsigned number = 0;
    std::wstring text;
};

// A file's bytes as lines with their line ends.
std::vector<std::string> LinesWithEnds(std::string_view bytes);

// The edits that add the texts at the end of the last table in the language of the script's first table; a
// script without tables gets one. The script's code page and line ends are kept; what the code page does not
// have is written as escapes. Throws CToolError when the script cannot be read or is in UTF-16.
std::vector<SLineEdit> EditsOfScript(const std::string& name, std::string_view bytes,
                                     const std::vector<SNewText>& texts);

// A script that holds nothing but the texts, for those of the template with that name.
std::string NewScript(const std::string& templateName, const std::vector<SNewText>& texts);

// The lines with the edits made.
std::string Edited(const std::vector<std::string>& lines, const std::vector<SLineEdit>& edits);
