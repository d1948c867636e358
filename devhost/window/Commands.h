// The ids of the main window's controls and of its menu commands.
#pragma once

namespace devhost {

enum EControl { IDC_DRAWING = 100, IDC_OUTPUT, IDC_PROMPT, IDC_STATUS, IDC_LABEL };

enum ECommand {
    IDM_RELOAD = 200,
    IDM_FIT,
    IDM_SNAP,
    IDM_CLEAR,
    IDM_HELP,
    IDM_ABOUT,
    IDM_EXIT,
    IDM_OPEN_UNITS,
    IDM_OPEN_PRECISION,
    IDM_UNDO,
    IDM_REDO,
    IDM_SAVE,
    IDM_RESCAN,
    IDM_UNITS = 300,      // plus a value of LUNITS
    IDM_PRECISION = 320,  // plus a value of LUPREC
    IDM_RECENT = 400,     // plus an index in the list of last items
    IDM_LANGUAGE = 500,   // plus the language's index
    IDM_ITEM = 1000,      // plus the item's index
};

}  // namespace devhost
