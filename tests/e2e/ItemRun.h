// An item of the sample folder, run by its routine from the choice of a variant to the drawing, with UI
// automation.
#pragma once

#include <string>

#include "tests/e2e/ItemDialogWindow.h"
#include "tests/e2e/SvgDrawing.h"

class ItemRun : public ItemDialogWindow {
protected:
    // Starts the stand-in host on items in `items`, a folder in the host's own, and calls the item's
    // function.
    void Call(const std::string& item, const std::string& items = "samples");
    // Copies the sample items to the folder `samples`.
    void UseSamples() const;

    // Double-clicks a slide: its column and row in the choice dialog, from 0, and how many columns there are.
    void Choose(int column, int row, int columns, int rows) const;
    // The item dialog, which must open with this title.
    void ExpectDialog(const std::string& title);
    // Presses OK and answers the question for the insertion point.
    void PlaceAt(const std::string& point);
    // What was drawn by the end of the run, which must be a good one.
    SvgDrawing Drawing();
};
