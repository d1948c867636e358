// The command line of DevHost.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "devhost/UserError.h"
#include "units/LinearUnits.h"

// Something to evaluate before the window is the user's.
struct STask {
    bool isScript;      // a file; otherwise expressions, whose values are printed
    std::wstring text;  // the file's name, or the expressions

    bool operator==(const STask&) const = default;
};

struct SOptions {
    std::wstring plugIn;  // empty: TavrinWnd.dll beside the executable
    std::vector<std::wstring> searchFolders;
    std::vector<std::wstring> itemFolders;  // empty: samples beside the executable, if there is such a folder
    std::vector<STask> tasks;               // in the order given
    std::wstring drawingFile;               // empty: the drawing is not kept
    int lunits = LU_DECIMAL;
    int luprec = 4;
    bool checkHeap = false;
    bool stay = false;
    bool version = false;
    bool help = false;
};

// Parses the arguments after the program's name. Throws CUserError for unknown options and arguments, and for
// missing and invalid values. --help and --version win over everything else.
SOptions ParseOptions(std::span<const std::wstring> arguments);

// What --help prints, in lines.
const wchar_t* HelpText();
