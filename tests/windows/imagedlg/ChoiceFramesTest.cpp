// The frames of the choice dialog, pixel by pixel.
#include <gtest/gtest.h>

#include <array>

#include "tests/windows/imagedlg/ChoiceFixture.h"
#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/ImportHook.h"

extern "C" HGDIOBJ(WINAPI* __imp_SelectObject)(HDC dc, HGDIOBJ object) IMPORT_ENTRY(SelectObject, 8);

namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF gray = RGB(128, 128, 128);

// By count, from 1. Cells outside the window show nothing.
constexpr std::array<const char*, 7> shownFrames = {"",       "B  -  ", "B- -- ", "B-----",
                                                    "B- -- ", "B-----", "B-----"};

using ChoiceFrames = CChoiceFixture;

// Paints over all that the dialog shows, so that white frames can be distinguished from its white surface.
void CoverWithGray(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    const HDC dc = GetDC(window);
    const HBRUSH brush = CreateSolidBrush(gray);
    FillRect(dc, &client, brush);
    DeleteObject(brush);
    ReleaseDC(window, dc);
}

TEST_F(ChoiceFrames, TheFirstCellHasABlackFrameOfThreePixelsForEveryCount) {
    for (size_t count = 1; count <= 6; ++count) {
        RunPainted(static_cast<int>(count), [&](CTavrinSelMaskDlg& dialog) {
            EXPECT_EQ(FramesIn(dialog, white), shownFrames[count]) << count;
        });
    }
}

TEST_F(ChoiceFrames, TheOtherCellsHaveWhiteOnesAndSkippedCellsNone) {
    constexpr std::array<const char*, 7> painted = {"",       "B  W  ", "BW WW ", "BWW---",
                                                    "BW WW ", "BWWW-W", "BWWWWW"};
    for (size_t count = 1; count <= 6; ++count) {
        RunPainted(static_cast<int>(count), [&](CTavrinSelMaskDlg& dialog) {
            CoverWithGray(dialog);
            dialog.PaintFrames();
            EXPECT_EQ(FramesIn(dialog, gray), painted[count]) << count;
        });
    }
}

TEST_F(ChoiceFrames, MoveWithTheSelection) {
    RunPainted(6, [&](CTavrinSelMaskDlg& dialog) {
        for (int cell = kChoiceCells; cell >= 1; --cell) {
            Click(CellOf(dialog, cell));
            EXPECT_TRUE(WaitForFrame(dialog, cell)) << cell;
            std::string expected = "------";
            expected[static_cast<size_t>(cell - 1)] = 'B';
            EXPECT_EQ(FramesIn(dialog, white), expected);
        }
    });
}

TEST_F(ChoiceFrames, DoNotMoveToTheLogo) {
    RunPainted(5, [&](CTavrinSelMaskDlg& dialog) {
        Click(CellOf(dialog, 4));
        EXPECT_TRUE(WaitForFrame(dialog, 4));
        Click(CellOf(dialog, 5));
        // The click on a cell's neighbour shows that the one before was handled.
        Click(CellOf(dialog, 6));
        EXPECT_TRUE(WaitForFrame(dialog, 6));
        dialog.SelectCell(5);
        EXPECT_EQ(FramesIn(dialog, white), "-----B");
    });
}

TEST_F(ChoiceFrames, StandAgainAfterAnotherWindowCoveredTheDialog) {
    RunPainted(6, [&](CTavrinSelMaskDlg& dialog) {
        Click(CellOf(dialog, 2));
        EXPECT_TRUE(WaitForFrame(dialog, 2));
        CRect area;
        dialog.GetWindowRect(&area);
        CWnd cover;
        cover.CreateEx(WS_EX_TOPMOST,
                       AfxRegisterWndClass(0, nullptr, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH))),
                       L"cover", WS_POPUP | WS_VISIBLE, area, nullptr, 0);
        PumpMessages();
        cover.DestroyWindow();
        EXPECT_TRUE(WaitForFrame(dialog, 2));
        EXPECT_EQ(FramesIn(dialog, white), "-B----");
        EXPECT_EQ(ShownIn(dialog), "012345");
    });
}

TEST_F(ChoiceFrames, StandAgainAfterTheWholeDialogIsRepainted) {
    RunPainted(4, [&](CTavrinSelMaskDlg& dialog) {
        dialog.SelectCell(5);
        CoverWithGray(dialog);
        dialog.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        EXPECT_EQ(FramesIn(dialog, white), "-- -B ");
        EXPECT_EQ(ShownIn(dialog), "01 23 ");
    });
}

TEST_F(ChoiceFrames, StandAgainAfterAPartOfTheDialogIsRepainted) {
    RunPainted(6, [&](CTavrinSelMaskDlg& dialog) {
        const CRect leftHalfOfFrame(0, 0, 50, 100);
        dialog.InvalidateRect(leftHalfOfFrame);
        dialog.UpdateWindow();
        PumpMessages();
        EXPECT_EQ(FramesIn(dialog, white), "B-----");
    });
}

TEST_F(ChoiceFrames, StayWhenACellIsRepainted) {
    RunPainted(6, [&](CTavrinSelMaskDlg& dialog) {
        for (const int cell : {1, 2, 4}) {
            ::InvalidateRect(CellOf(dialog, cell), nullptr, TRUE);
            ::UpdateWindow(CellOf(dialog, cell));
            EXPECT_EQ(FramesIn(dialog, white), "B-----") << cell;
            EXPECT_EQ(ShownIn(dialog), "012345") << cell;
        }
    });
}

TEST_F(ChoiceFrames, RunOverAHiddenButton) {
    RunPainted(6, [&](CTavrinSelMaskDlg& dialog) {
        CWnd& hidden = *dialog.GetDlgItem(IDC_CHOICE_REPLACE);
        ASSERT_FALSE(hidden.IsWindowVisible());
        hidden.SetWindowPos(nullptr, 0, 0, 60, 60, SWP_NOZORDER | SWP_NOREDRAW);
        CoverWithGray(dialog);
        dialog.PaintFrames();
        EXPECT_EQ(FramesIn(dialog, gray), "BWWWWW");
    });
}

// With one and two choices cells of the bottom row have frames where the buttons now stand.
TEST_F(ChoiceFrames, NeverRunOverAButton) {
    for (const int count : {1, 2}) {
        RunPainted(count, [&](CTavrinSelMaskDlg& dialog) {
            CoverWithGray(dialog);
            dialog.PaintFrames();
            const CClientPixels pixels(dialog);
            for (const int button : {IDOK, IDCANCEL}) {
                const RECT rect = RectOf(dialog, ::GetDlgItem(dialog, button));
                EXPECT_EQ(pixels.Count(rect, gray), (rect.right - rect.left) * (rect.bottom - rect.top))
                    << count;
            }
        });
    }
}

// Selections of pens: the one selected at last must be the one that was there at first.
struct PenSelections {
    int count = 0;
    HGDIOBJ first = nullptr;
    HGDIOBJ last = nullptr;
};
PenSelections penSelections;

TEST_F(ChoiceFrames, GiveTheDeviceContextItsPenBack) {
    static decltype(__imp_SelectObject) system;
    RunPainted(6, [&](CTavrinSelMaskDlg& dialog) {
        penSelections = {};
        system = __imp_SelectObject;
        const CImportHook select(
            __imp_SelectObject, +[](HDC dc, HGDIOBJ object) WINAPI {
                const HGDIOBJ previous = system(dc, object);
                if (::GetObjectType(object) == OBJ_PEN) {
                    penSelections.first = penSelections.count == 0 ? previous : penSelections.first;
                    penSelections.last = object;
                    ++penSelections.count;
                }
                return previous;
            });
        dialog.PaintFrames();
    });
    EXPECT_GT(penSelections.count, 1);
    EXPECT_EQ(penSelections.last, penSelections.first);
}

}  // namespace
