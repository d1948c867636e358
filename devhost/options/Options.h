// The command line of DevHost.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "devhost/Libraries.h"
#include "devhost/UserError.h"
#include "units/LinearUnits.h"

namespace devhost {

// Something to evaluate at the start.
struct Task {
    bool isScript;      // a file; otherwise expressions, whose values are printed
    std::wstring text;  // the file's name, or the expressions

    bool operator==(const Task&) const = default;
};

struct Options {
    std::wstring plugIn;  // empty: TavrinWnd.dll beside the executable
    std::vector<std::wstring> searchFolders;
    std::vector<std::wstring> itemFolders;  // empty: samples beside the executable, if there is such a folder
    std::wstring texts;                     // empty: those of the items, or what the system finds
    std::vector<Task> tasks;                // in the order given
    std::wstring drawingFile;               // empty: the drawing is not kept
    int lunits = units::LU_DECIMAL;
    int luprec = 4;
    bool checkHeap = false;
    bool stay = false;
    bool version = false;
    bool help = false;
};

// Parses the arguments after the program's name. Throws CUserError for unknown options and arguments, and for
// missing and invalid values. --help and --version win over everything else.
Options ParseOptions(std::span<const std::wstring> arguments);

// What --help prints, in lines.
const wchar_t* HelpText();

}  // namespace devhost
