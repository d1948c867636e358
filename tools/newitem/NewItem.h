// The files of a new item: a template with two parameters, its texts, a picture, the slides of two variants,
// and a LISP routine that draws a rectangle. Everything passes the checker.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/texts/ScriptEdit.h"
#include "tools/texts/TextTable.h"

namespace tavrin::tools {

// Why an item cannot have this name, for the user; empty when it can. The name is that of a folder, of files
// and of a LISP function: small and capital letters, digits, "-" and "_", beginning with a letter.
std::string ObjectionToName(std::string_view name);

// A file of an item, relative to the folder of items.
struct NewFile {
    std::string name;
    std::string bytes;
};

// The template refers to its texts by the numbers from `firstText` on.
std::vector<NewFile> FilesOfNewItem(const std::string& name, unsigned firstText);

// The texts for the template: its title and labels, in Italian or, for all other languages, in English.
std::vector<NewText> TextsOfNewItem(const std::string& name, unsigned firstText, unsigned languageId);

// The texts that a routine such as item.lsp shows by their numbers, in Italian or, for all other languages,
// in English: those of item.lsp's own checks.
std::vector<NewText> TextsOfSharedRoutine(std::string_view routine, unsigned languageId);

// The first number of the first range of 99 numbers that no text has, among `from`, `from` + 100 and so on.
// Throws CToolError when there is none.
unsigned FirstFreeText(const std::vector<CTextTable>& scripts, unsigned from);

// A script in English with the two texts of the module itself.
std::string NewTextScript();

// The files that all items of a folder share: item.lsp, as the sample items have it, logo.png and empty.png.
std::vector<NewFile> SharedFiles();

// The text of item.lsp.
extern const char* const kSharedRoutine;

}  // namespace tavrin::tools
