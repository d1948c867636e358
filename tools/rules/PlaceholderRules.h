// Placeholders in titles and labels.
#pragma once

#include <string>

#include "tools/rules/RuleGroup.h"

namespace tavrin::tools {

RuleList PlaceholderRules();

// Reports an invalid placeholder in a text without a valid one, which begins at `start` of the line.
// `consequence` is a clause for the message. True when something was found.
bool CheckPlaceholderForm(CFindingList& findings, const ItemLine& line, std::size_t start,
                          const std::wstring& text, const std::string& consequence);

// Reports a number out of range. The placeholder begins at `start` of the line.
void CheckPlaceholderNumber(CFindingList& findings, const ItemLine& line, std::size_t start, int number);

}  // namespace tavrin::tools
