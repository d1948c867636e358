// UI automation of the property grid's gallery, on the checking allocator: values are found by
// their names, changes by the lines that the gallery prints.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "tests/e2e/Desktop.h"
#include "tests/e2e/HostRun.h"

class GalleryWindow : public testing::Test {
protected:
    // A value's cell, in pixels of the gallery's client area.
    struct Cell {
        int left, top, right, bottom;
        int MiddleX() const { return (left + right) / 2; }
        int MiddleY() const { return (top + bottom) / 2; }
    };

    GalleryWindow();
    // Opens the gallery and reads the rectangles of its values.
    void Open();
    // Reads the rectangles of the gallery's values again.
    void ReadRectangles();

    void ClickValue(const std::string& name) const;
    void DoubleClickValue(const std::string& name) const;
    // A double click opens the dialog of a value; its title.
    Window OpenDialog(const std::string& name, const std::string& title) const;
    // Opens the list or the calendar of a value by a click; its window.
    Window DropDown(const std::string& name) const;

    // Presses keys in whatever window has the focus; types a text there.
    static void PressKeys(const std::string& keys);
    static void Type(const std::string& text);
    // Replaces the text of the edit that has the focus.
    static void TypeOver(const std::string& text);

    // Waits until the gallery has printed exactly these changes from the start on.
    void ExpectChanges(const std::vector<std::string>& changes) const;
    // Closes the gallery with Escape; its exit status must be 0, and these the only changes.
    void CloseExpecting(const std::vector<std::string>& changes);

    // What the gallery has printed, except for the rectangles.
    std::vector<std::string> Changes() const;

    HostRun run;
    Window gallery;
    std::map<std::string, Cell> cells;
    std::vector<std::string> cellOrder;  // the names of `cells` from the top down

private:
    std::vector<std::string> Lines() const;
};
