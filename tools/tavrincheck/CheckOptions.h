// The command line of the check.
#pragma once

#include <string>
#include <vector>

namespace tavrin::tools {

enum EReportFormat { RF_TEXT, RF_JSON, RF_SARIF };

struct CheckOptions {
    std::vector<std::string> names;  // files and folders
    std::vector<std::string> texts;
    std::vector<std::string> disabledRules;
    EReportFormat format = RF_TEXT;
    bool strict = false;
    bool listRules = false;
    bool help = false;
    bool version = false;
};

// Throws CUsageError (cmdline/CommandLine.h) for options that are wrong, and CToolError when there is nothing
// to do.
CheckOptions ParseCheckOptions(const std::vector<std::string>& arguments);

// What --help prints.
const char* CheckHelp();

}  // namespace tavrin::tools
