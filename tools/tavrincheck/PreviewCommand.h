// tavrincheck preview: the item dialog on a file, as text.
#pragma once

#include <string>
#include <vector>

// Prints the preview of the file that the arguments name, and gives the exit status 0. Throws CToolError or
// CUsageError when the arguments make no sense or a file cannot be read.
int RunPreview(const std::vector<std::string>& arguments);
