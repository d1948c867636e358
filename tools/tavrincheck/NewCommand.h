// tavrincheck new: writes the files of a new item.
#pragma once

#include <string>
#include <vector>

namespace tavrin::tools {

// Writes the item that the arguments name. Returns the exit status 0. Throws CToolError or CUsageError,
// before anything is written, for invalid arguments, an item that exists, and scripts with errors; CToolError
// also for files that cannot be written.
int RunNew(const std::vector<std::string>& arguments);

}  // namespace tavrin::tools
