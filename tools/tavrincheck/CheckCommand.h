// The command that checks files: what tavrincheck does without a subcommand.
#pragma once

#include <string>
#include <vector>

// Checks the files and folders that the arguments name, prints the findings and gives the exit status: 0
// nothing was found that counts, 1 something was, 2 a file could not be read, which goes to the standard
// error output. Throws CToolError or CUsageError for arguments that make no sense, and when the findings
// cannot be printed.
int RunCheck(const std::vector<std::string>& arguments);
