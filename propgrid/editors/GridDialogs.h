// The dialogs in which the property grid lets the user edit a value.
#pragma once

#include <afxwin.h>

#include <optional>

#include "propgrid/model/GridItem.h"
#include "propgrid/model/GridSettings.h"

namespace tavrin::propgrid {

// What the dialogs of all rows have in common.
struct GridDialogLook {
    CWnd* parent;  // owns the dialog; may be null
    CFont* font;   // of the two dialogs that the grid assembles itself
    const GridTexts& texts;
};

// Runs the dialog of an item of edit mode EM_MODAL that is not a custom item. The value that the user
// confirmed, nothing when the dialog was cancelled. The item may be gone when the dialog ends: it is not
// touched afterwards.
std::optional<Value> AskForValue(const GridDialogLook& look, const GridItem& item);

}  // namespace tavrin::propgrid
