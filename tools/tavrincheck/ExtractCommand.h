// tavrincheck extract: literal labels become texts.
#pragma once

#include <string>
#include <vector>

// Shows, or with --write makes, the changes of the template and the script that the arguments name, and gives
// the exit status 0. Throws CToolError or CUsageError when the arguments make no sense or a file cannot be
// read or written.
int RunExtract(const std::vector<std::string>& arguments);
