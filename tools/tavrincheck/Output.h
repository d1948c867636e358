// The standard output of a command.
#pragma once

#include <string_view>

namespace tavrin::tools {

// Prints text and flushes. Throws CToolError when it cannot be written, so that a truncated report does not
// look complete.
void Print(std::string_view text);

}  // namespace tavrin::tools
