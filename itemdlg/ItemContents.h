// What the item dialog makes of a working file: its title, its header and its parameters, each with what
// becomes of it in the grid. Both the dialog and its preview are filled from this.
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
    PR_LABEL_TAKEN,   // it gets no row: a row above has the same label
    PR_INVALID_TYPE,  // it gets no row but a warning: its type letter is lower case
};

struct ItemParameter : ParameterRow {
    EParameterRow row = PR_SHOWN;
};

struct ItemContents {
    // The window's title. Nothing when the file is too short to have one: title and header stay unchanged.
    std::optional<std::wstring> title;
    std::wstring header;
    std::vector<ItemParameter> parameters;  // in the order of their lines
};

// Reads the lines of a working file. Distances and reals are multiplied by the scale; in mode 1
// (kReadOnlyMode) marked rows are read-only. Title and header end at their first null character, as windows'
// texts do.
ItemContents ReadItem(const TextLines& lines, double scale, int mode, const TextLookup& lookup,
                      const PlaceholderLookup& placeholder = PlaceholderNumber);

}  // namespace tavrin::itemdlg
