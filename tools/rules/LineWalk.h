// Passes a file's lines to groups of rules, with their meaning to the module's reader.
#pragma once

#include <span>
#include <string_view>

#include "tools/rules/RuleGroup.h"

namespace tavrin::tools {

// Holds only one line at a time. Of a file in UTF-16 only the first line is passed, since the reader
// understands none.
void WalkLines(std::string_view bytes, std::span<CRuleGroup* const> groups);

}  // namespace tavrin::tools
