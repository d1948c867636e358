// Replaces literal labels and a literal title of a template by placeholders, so that the dialog shows the
// same once the texts are in the resource module.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "tools/files/FileLines.h"
#include "tools/texts/ScriptEdit.h"
#include "tools/texts/TextTable.h"

namespace tavrin::tools {

// The numbers and texts of a script.
struct KnownTextNumbers {
    std::set<unsigned> taken;                // in any language
    std::map<std::wstring, unsigned> texts;  // of the language that new texts are written in
};

// The language is that of the script's first table.
KnownTextNumbers KnownTexts(const CTextTable& script);

struct Extraction {
    std::vector<FileLine> lines;     // of the new template
    std::vector<NewText> newTexts;   // in the order of their lines; equal texts share a number
    std::vector<std::string> notes;  // why literals stay: UTF-8
};

// New numbers begin with `firstNumber`; those in `known` and in the template's placeholders are skipped. The
// read-only mark stays in the template after the placeholder. A literal stays if the dialog would show, or OK
// would write, anything else than before. Throws CToolError when there are no numbers left up to 65535.
Extraction ExtractLabels(const std::vector<FileLine>& lines, unsigned firstNumber,
                         const KnownTextNumbers& known);

}  // namespace tavrin::tools
