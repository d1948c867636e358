// The pictures of an item and of its routine.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tools/rules/FindingList.h"
#include "tools/rules/RuleGroup.h"
#include "tools/rules/TextRules.h"

namespace tavrin::tools {

RuleList PictureRules();

// The data of an item for the checks of pictures.
struct PictureContext {
    std::string templateFile;            // "samples/door/door.TXT", as the user named it
    std::string routineFile;             // "samples/door/door.lsp"
    std::string baseName;                // "door", without folder
    std::optional<std::string> routine;  // the bytes of the routine, if there is one
    // Whether a file with that name exists beside the template.
    std::function<bool(const std::string& name)> exists;
    const CTextTable* texts = nullptr;  // null when unknown
    TextNumbers* usedTexts = nullptr;  // collects the numbers of the texts that the routine uses, unless null
};

// Checks the item's picture and, for each call of tavrinselmask, item-choose and tavrinprevmask in the
// routine, the slides and pictures whose names are literal texts (see RoutineCalls.h).
std::vector<Finding> CheckPictures(const PictureContext& context);

}  // namespace tavrin::tools
