// Takes the literal labels and the literal title out of a template and puts placeholders there, so that the
// dialog shows the same once their texts are in the resource module.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "tools/files/FileLines.h"
#include "tools/texts/ScriptEdit.h"
#include "tools/texts/TextTable.h"

// Numbers and texts that are known already.
struct SKnownTexts {
    std::set<unsigned> taken;                // in any language
    std::map<std::wstring, unsigned> texts;  // of the language that new texts are written in
};

// What a script knows; the language is that of its first table.
SKnownTexts KnownTexts(const CTextTable& script);

struct SExtraction {
    std::vector<SFileLine> lines;    // the template as it becomes
    std::vector<SNewText> newTexts;  // in the order of their lines; equal texts share a number
    std::vector<std::string> notes;  // what stays as it is although it is literal, and why: UTF-8
};

// Numbers are given from `firstNumber` on; those that are taken, and those that the template's placeholders
// name, are skipped. The read-only mark stays in the template behind its placeholder. A literal stays where
// the dialog would show, or OK would write, anything else than before. Throws CToolError when the numbers,
// which end at 65535, run out.
SExtraction ExtractLabels(const std::vector<SFileLine>& lines, unsigned firstNumber,
                          const SKnownTexts& known);
