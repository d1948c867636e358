// Placeholders by themselves, in the title and in labels.
#pragma once

#include <string>

#include "tools/rules/RuleGroup.h"

RuleList PlaceholderRules();

// Reports what looks like a placeholder and is none, in a text without placeholder that stands at `start` of
// the line; `consequence` is a clause that says what becomes of it. True when something was found.
bool CheckPlaceholderForm(CFindingList& findings, const SItemLine& line, std::size_t start,
                          const std::wstring& text, const std::string& consequence);

// Reports a number that no text can have. The placeholder begins at `start` of the line.
void CheckPlaceholderNumber(CFindingList& findings, const SItemLine& line, std::size_t start, int number);
