// UI automation of the item dialog with the sample door. Points are given in the dialog's own units, or
// as rows of its grid.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/e2e/Desktop.h"
#include "tests/e2e/HostRun.h"

inline constexpr Rgb headerGray{0xC8, 0xC8, 0xC8};
inline constexpr Rgb dialogGray{0xE1, 0xE1, 0xE1};
inline constexpr Rgb modifiedYellow{255, 255, 80};
inline constexpr Rgb labelBlue{0, 60, 160};

class ItemDialogWindow : public testing::Test {
protected:
    // Opens the dialog through the stand-in host on the checking allocator, with its units and precision.
    void Open(const std::string& call = R"((tavrinwnd "door" 1.0 1))", int units = 2, int precision = 2);
    // Looks until the header and the grid's rows are painted.
    void LookWhenPainted();

    int X(int units) const { return units * screen.Width() / 645; }
    int Y(int units) const { return units * screen.Height() / 290; }
    void ClickAt(int x, int y) const { dialog.Click(X(x), Y(y)); }
    void PressOk() const { ClickAt(564, 279); }
    void PressCancel() const { ClickAt(616, 279); }

    // Pixels of a row of the grid, counted from 0: the middle of its value, and of the button at its end.
    int RowY(int row) const { return Y(18) + row * m_rowHeight + m_rowHeight / 2; }
    // The door has more rows than fit: the scroll bar stands right of them.
    int RowEnd() const { return X(645) - 17; }
    int ValueX() const { return X(453) + 210 + 20; }
    int ButtonX() const { return RowEnd() - m_rowHeight / 2; }
    void ClickValue(int row) const { dialog.Click(ValueX(), RowY(row)); }
    void ClickButton(int row) const { dialog.Click(ButtonX(), RowY(row)); }
    // Waits until some pixel of the row's value has the colour.
    void ExpectInValue(int row, Rgb color) const;

    // A click on the value opens its edit with the caret after the text; the text is replaced.
    void Type(int row, const std::string& text) const;

    // The host's window, once the dialog is hidden and the host shows a prompt: before that it ignores typed
    // text.
    Window WaitForQuestion() const;

    // Waits for the host's end, which must be a good one, and gives LISP's answer.
    std::string Answer();

    HostRun host;
    Window dialog;
    Screenshot screen{""};

private:
    bool ValueShows(int row, Rgb color) const;
    int FindRowHeight() const;

    int m_rowHeight = 0;
};
