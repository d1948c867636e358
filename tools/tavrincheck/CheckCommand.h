// Checks files: tavrincheck without a subcommand.
#pragma once

#include <string>
#include <vector>

namespace tavrin::tools {

// Checks the files and folders that the arguments name and prints the findings. Returns the exit status: 0 no
// findings that count, 1 findings, 2 a file could not be read, with a message on standard error. Throws
// CToolError or CUsageError for invalid arguments, and when the findings cannot be printed.
int RunCheck(const std::vector<std::string>& arguments);

}  // namespace tavrin::tools
