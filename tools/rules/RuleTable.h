// All rules of the checker.
#pragma once

#include <string>
#include <string_view>

#include "tools/rules/RuleGroup.h"

namespace tavrin::tools {

// In the order of the documentation.
RuleList AllRules();

// Null for an unknown id.
const Rule* FindRule(std::string_view id);

// Each rule with its explanation and its example, as Markdown.
std::string RulesText();

}  // namespace tavrin::tools
