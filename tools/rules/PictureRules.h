// The pictures that belong to an item: its own, and those that its routine shows.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tools/rules/FindingList.h"
#include "tools/rules/RuleGroup.h"

RuleList PictureRules();

// An item as far as its pictures are concerned.
struct SPictureContext {
    std::string templateFile;            // "samples/door/door.TXT", as the user named it
    std::string routineFile;             // "samples/door/door.lsp"
    std::string baseName;                // "door", without folder
    std::optional<std::string> routine;  // the bytes of the routine, if there is one
    // Whether a file with that name lies beside the template.
    std::function<bool(const std::string& name)> isThere;
};

// Looks for the item's picture and, for each call of tavrinselmask and tavrinprevmask in the routine, for the
// slides and pictures of those names that are written out as texts in the call.
std::vector<SFinding> CheckPictures(const SPictureContext& context);
