// The texts of placeholders.
#pragma once

#include <bitset>
#include <span>
#include <vector>

#include "tools/rules/RuleGroup.h"
#include "tools/texts/TextTable.h"

namespace tavrin::tools {

RuleList TextRules();

// The numbers of the texts that files use.
using TextNumbers = std::bitset<itemdlg::kHighestTextNumber + 1>;

// The numbers of the texts that the module itself shows.
std::span<const unsigned> ModuleTexts();

// The texts of the module that no language has.
std::vector<Finding> CheckTextsOfModule(const CTextTable& texts);

// Checks the texts themselves and against the numbers that the checked files use.
std::vector<Finding> CheckTexts(const CTextTable& texts, const TextNumbers& used);

}  // namespace tavrin::tools
