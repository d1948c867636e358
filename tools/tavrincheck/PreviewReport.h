// The item dialog foretold, as text for a terminal.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tools/files/FileLines.h"
#include "tools/tavrincheck/ItemPreview.h"

struct SPreviewFile {
    std::string name;
    std::vector<SFileLine> lines;
};

struct SPreviewInput {
    SPreviewFile workingFile;
    std::optional<SPreviewFile> templateFile;  // nothing when the dialog would not find it
    std::string templateName;
    std::optional<std::string> picture;  // its name; nothing when there is none
};

// Title, rows with their values, what the dialog would say, and as diffs what OK would write. UTF-8, with
// control characters as their pictures. The diffs show lines without their ends, since OK gives every line
// the same one; where that changes the file, it says so.
std::string PreviewReport(const SPreviewInput& input, const CItemPreview& preview);
