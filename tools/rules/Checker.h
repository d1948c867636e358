// Checks the bytes of item files, without accessing files. Whatever the bytes are, run time and memory are
// linear.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/rules/Finding.h"
#include "tools/rules/TextRules.h"
#include "tools/texts/TextTable.h"

namespace tavrin::tools {

struct CheckContext {
    std::string file;                   // its name for the user
    bool isWorkingFile = false;         // else a template
    const CTextTable* texts = nullptr;  // of placeholders; null when unknown
    TextNumbers* usedTexts = nullptr;   // collects the numbers of all placeholders, unless null
};

// All findings of one file, in the order of their positions.
std::vector<Finding> CheckText(std::string_view bytes, const CheckContext& context);

// A file's contents, and its name for the user.
struct NamedBytes {
    std::string file;
    std::string_view bytes;
};
// Compares a working file with its template.
std::vector<Finding> ComparePair(const NamedBytes& templateFile, const NamedBytes& workingFile);

}  // namespace tavrin::tools
