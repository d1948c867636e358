// tavrincheck preview: the item dialog on a file, as text.
#pragma once

#include <string>
#include <vector>

namespace tavrin::tools {

// Prints the preview of the file that the arguments name. Returns the exit status 0. Throws CToolError or
// CUsageError for invalid arguments and for files that cannot be read.
int RunPreview(const std::vector<std::string>& arguments);

}  // namespace tavrin::tools
