// The preview of the item dialog as text.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tools/files/FileLines.h"
#include "tools/tavrincheck/ItemPreview.h"

namespace tavrin::tools {

struct PreviewFile {
    std::string name;
    std::vector<FileLine> lines;
};

struct PreviewInput {
    PreviewFile workingFile;
    std::optional<PreviewFile> templateFile;  // nothing when it does not exist
    std::string templateName;
    std::optional<std::string> picture;  // its name; nothing when it does not exist
};

// Title, rows with their values, messages, and what OK would write as diffs. UTF-8, with symbols for control
// characters. The diffs ignore line ends; a line says how many of them OK changes.
std::string PreviewReport(const PreviewInput& input, const CItemPreview& preview);

}  // namespace tavrin::tools
