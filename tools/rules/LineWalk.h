// Shows a file's lines to groups of rules, with what the module's reader makes of each.
#pragma once

#include <span>
#include <string_view>

#include "tools/rules/RuleGroup.h"

// Takes the lines one by one, so that no more than one is held at a time. A file in UTF-16 ends with its
// first line: of the others the reader understands nothing that is worth saying.
void WalkLines(std::string_view bytes, std::span<CRuleGroup* const> groups);
