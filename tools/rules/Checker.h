// Checks the bytes of item files. Nothing here touches a file, and no bytes can do harm: the time that a
// check takes grows with their number, and so does the memory.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/rules/Finding.h"
#include "tools/rules/TextRules.h"
#include "tools/texts/TextTable.h"

struct SCheckContext {
    std::string file;                   // its name for the user
    bool isWorkingFile = false;         // else a template
    const CTextTable* texts = nullptr;  // what placeholders stand for; null when that is not known
    TextNumbers* usedTexts = nullptr;   // where the numbers of all placeholders are added; null for nowhere
};

// Everything that can be found in one file, in the order of its places.
std::vector<SFinding> CheckText(std::string_view bytes, const SCheckContext& context);

// What the working file has otherwise than its template.
struct SNamedBytes {
    std::string file;
    std::string_view bytes;
};
std::vector<SFinding> ComparePair(const SNamedBytes& templateFile, const SNamedBytes& workingFile);
