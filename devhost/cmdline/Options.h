// The command line of DevHost.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "LinearUnits.h"
#include "UserError.h"

struct SOptions {
    std::wstring plugIn;  // empty: TavrinWnd.dll beside the executable
    std::vector<std::wstring> searchFolders;
    std::vector<std::wstring> evaluations;
    short lunits = LU_DECIMAL;
    short luprec = 4;
    bool checkHeap = false;
    bool help = false;
};

// Reads the arguments behind the program's name. Throws CUserError for an option or an argument that is
// not known, for one without its value and for a number out of range. --help wins over what follows it.
SOptions ParseOptions(std::span<const std::wstring> arguments);

// What --help prints, in lines.
const wchar_t* HelpText();
