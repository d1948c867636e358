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
    short lunits = LU_DECIMAL;
    short luprec = 4;
    bool checkHeap = false;
    bool stay = false;
    bool version = false;
    bool help = false;
};

// Reads the arguments behind the program's name. Throws CUserError for an option or an argument that is
// not known, for one without its value and for a number out of range. --help and --version win over what
// follows them.
SOptions ParseOptions(std::span<const std::wstring> arguments);

// What --help prints, in lines.
const wchar_t* HelpText();
