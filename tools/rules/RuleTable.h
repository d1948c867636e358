// All rules of the checker.
#pragma once

#include <string>
#include <string_view>

#include "tools/rules/RuleGroup.h"

// In the order in which they are listed: by what they are about.
RuleList AllRules();

// Null when there is no such rule.
const SRule* FindRule(std::string_view id);

// Each rule with its explanation and its example, as Markdown that reads well as it is.
std::string RulesText();
