// What the item dialog makes of a working file: its title and header, and one parameter after the other with
// the row that it gets. The dialog is filled from this, and so is a preview of it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "itemdlg/TemplateRewrite.h"
#include "itemdlg/TemplateText.h"

namespace tavrin::itemdlg {

// What becomes of a parameter in the grid.
enum EParameterRow {
    PR_SHOWN,         // it gets a row
    PR_LABEL_TAKEN,   // none: a row above has exactly its label, and the grid takes no second one
    PR_INVALID_TYPE,  // none, but a warning: its type letter is no capital
};

struct ItemParameter : ParameterRow {
    EParameterRow row = PR_SHOWN;
};

struct ItemContents {
    // Of the window. Nothing when the file has no line for it, which leaves title and header as they are.
    std::optional<std::wstring> title;
    std::wstring header;
    std::vector<ItemParameter> parameters;  // in the order of their lines
};

// Reads the lines of a working file. Distances and reals are multiplied by the scale; in read-only mode
// marked rows are read-only. Title and header end at their first null character, as windows' texts do.
ItemContents ReadItem(const TextLines& lines, double scale, int mode, const TextLookup& lookup,
                      const PlaceholderLookup& placeholder = PlaceholderNumber);

}  // namespace tavrin::itemdlg
