// The choice dialog with slides of plain colours, and what its cells show.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "imagedlg/TavrinSelMaskDlg.h"
#include "tests/windows/support/ModalDriver.h"
#include "tests/windows/support/Pixels.h"
#include "tests/windows/support/TempFolder.h"

using namespace tavrin::imagedlg;

class CChoiceFixture : public testing::Test {
protected:
    // Files in a folder of the test's own that the host searches. Choice N is called "cN".
    CChoiceFixture();

    // NAME + `ending` in the colour of choice `number`.
    void WriteSlide(int number, const std::wstring& ending = L"_t.png") const;
    // Slides of `count` choices, and the logo.
    void WriteSlides(int count) const;

    // Choices 0 to count - 1 with their slides loaded.
    static void Fill(CTavrinSelMaskDlg& dialog, int count);

    // Fills a dialog and runs it while `step` acts on it. What DoModal returned.
    INT_PTR Run(CTavrinSelMaskDlg& dialog, int count, const CModalDriver::Step& step);

    // Runs a dialog with `count` choices and their slides until `look` has seen it painted.
    void RunPainted(int count, const std::function<void(CTavrinSelMaskDlg&)>& look);

    CTempFolder m_folder;
    CModalDriver m_driver;
};

// The control of a cell, 1 to 6.
HWND CellOf(HWND dialog, int cell);

// A control's window rectangle in the dialog's client coordinates.
RECT RectOf(HWND dialog, HWND control);

// What cells 1 to 6 show: the number of the choice whose colour it is, 'L' the logo, 'E' the stand-in for a
// missing slide, '.' nothing (white), '?' anything else; ' ' for a cell outside the window.
std::string ShownIn(HWND dialog);

// Around cells 1 to 6: 'B' for a black band of three pixels, 'W' a white one, '-' none, '?' anything else;
// ' ' for a cell outside the window. `background` is the colour of the dialog's surface around them; on a
// white one a white band cannot be detected and counts as none.
std::string FramesIn(HWND dialog, COLORREF background);

// Handles messages until the black frame stands around the cell; false when it does not get there.
bool WaitForFrame(HWND dialog, int cell);
