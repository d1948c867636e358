// The texts that placeholders stand for, by themselves.
#pragma once

#include <bitset>
#include <vector>

#include "tools/rules/RuleGroup.h"
#include "tools/texts/TextTable.h"

RuleList TextRules();

// The numbers of texts that files use.
using TextNumbers = std::bitset<tavrin::itemdlg::kHighestTextNumber + 1>;

// Checks the texts themselves and against the numbers that the checked files use.
std::vector<SFinding> CheckTexts(const CTextTable& texts, const TextNumbers& used);
