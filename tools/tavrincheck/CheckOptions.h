// The command line of the check.
#pragma once

#include <string>
#include <vector>

enum EReportFormat { RF_TEXT, RF_JSON, RF_SARIF };

struct SCheckOptions {
    std::vector<std::string> names;  // files and folders
    std::vector<std::string> texts;
    std::vector<std::string> disabledRules;
    EReportFormat format = RF_TEXT;
    bool strict = false;
    bool listRules = false;
    bool help = false;
    bool version = false;
};

// Reads the arguments. An option's value stands behind it or behind its "="; what follows "--" is no option.
// Throws CToolError for an option that is not known, one without its value, and when there is nothing to do.
SCheckOptions ParseCheckOptions(const std::vector<std::string>& arguments);

// What --help prints.
const char* CheckHelp();
