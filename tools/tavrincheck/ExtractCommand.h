// tavrincheck extract: moves literal labels into a string table script.
#pragma once

#include <string>
#include <vector>

namespace tavrin::tools {

// Prints the changes of the template and the script that the arguments name, or with --write makes them.
// Returns the exit status 0. Throws CToolError or CUsageError for invalid arguments and for files that cannot
// be read or written.
int RunExtract(const std::vector<std::string>& arguments);

}  // namespace tavrin::tools
