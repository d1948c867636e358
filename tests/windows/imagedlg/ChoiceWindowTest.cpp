// Size and position of the choice dialog and its buttons, in pixels.
#include <gtest/gtest.h>

#include "tests/windows/imagedlg/ChoiceFixture.h"
#include "tests/windows/support/DialogInput.h"

namespace {

// Notes where everything is before the dialog arranges itself.
class CWatchedDlg : public CTavrinSelMaskDlg {
public:
    using CTavrinSelMaskDlg::CTavrinSelMaskDlg;

    void ArrangeForCount() override {
        GetWindowRect(&window);
        GetDlgItem(IDOK)->GetWindowRect(&ok);
        GetDlgItem(IDCANCEL)->GetWindowRect(&cancel);
        GetDlgItem(IDC_CHOICE_REPLACE)->GetWindowRect(&replace);
        CTavrinSelMaskDlg::ArrangeForCount();
    }

    CRect window, ok, cancel, replace;  // screen coordinates
};

// Where the buttons and the window are once arranged.
struct Arranged {
    CRect window;               // screen coordinates
    CRect ok, cancel, replace;  // client coordinates
};

class ChoiceDialogWindow : public CChoiceFixture {
protected:
    Arranged RunArranged(CWatchedDlg& dialog, int count) {
        WriteSlides(count);
        Arranged arranged;
        Run(dialog, count, [&](HWND window) {
            ::GetWindowRect(window, &arranged.window);
            arranged.ok = RectOf(window, ::GetDlgItem(window, IDOK));
            arranged.cancel = RectOf(window, ::GetDlgItem(window, IDCANCEL));
            arranged.replace = RectOf(window, ::GetDlgItem(window, IDC_CHOICE_REPLACE));
            PressCloseBox(window);
        });
        return arranged;
    }
};

// Dialog units to pixels, with the window's own font.
CRect Mapped(HWND dialog, int x, int y, int width, int height) {
    RECT rect = {x, y, x + width, y + height};
    ::MapDialogRect(dialog, &rect);
    return rect;
}

TEST_F(ChoiceDialogWindow, StartsFromTheLayoutOfItsResource) {
    WriteSlides(6);
    CWatchedDlg dialog;
    Run(dialog, 6, [&](HWND window) {
        CRect client = Mapped(window, 0, 0, 710, 329);
        CRect frame = client;
        ::AdjustWindowRectEx(&frame, dialog.GetStyle(), FALSE, dialog.GetExStyle());
        EXPECT_EQ(dialog.window.Size(), frame.Size());
        const CSize origin = dialog.window.TopLeft() - frame.TopLeft();
        const auto onScreen = [&](int x, int y, int width, int height) {
            const CRect rect = Mapped(window, x, y, width, height);
            return CRect(rect.TopLeft() + origin, rect.Size());
        };
        EXPECT_TRUE(dialog.ok.EqualRect(onScreen(594, 312, 50, 14)));
        EXPECT_TRUE(dialog.cancel.EqualRect(onScreen(653, 312, 50, 14)));
        EXPECT_TRUE(dialog.replace.EqualRect(onScreen(92, 312, 53, 14)));
        EXPECT_TRUE(CRect(RectOf(window, CellOf(window, 1))).EqualRect(Mapped(window, 4, 4, 229, 146)));
        EXPECT_TRUE(CRect(RectOf(window, CellOf(window, 5))).EqualRect(Mapped(window, 240, 159, 229, 148)));
        PressCloseBox(window);
    });
}

TEST_F(ChoiceDialogWindow, IsCutToOneRowForOneToThreeChoices) {
    for (const int count : {1, 2, 3}) {
        CWatchedDlg before;
        const Arranged after = RunArranged(before, count);
        const int width = before.window.Width();
        const int half = before.window.Height() / 2;
        const int kept = count == 1   ? static_cast<int>(width * 0.34)
                         : count == 2 ? static_cast<int>(width * 0.67)
                                      : width;
        const int cut = count == 1   ? static_cast<int>(width * 0.67)
                        : count == 2 ? static_cast<int>(width * 0.34)
                                     : 0;
        EXPECT_EQ(after.window.Size(), CSize(kept, half + 28)) << count;
        EXPECT_EQ(after.ok.TopLeft(), CPoint(before.ok.left - cut - before.window.left,
                                             before.ok.top - half - before.window.top + 2))
            << count;
        EXPECT_EQ(after.cancel.TopLeft(), CPoint(before.cancel.left - cut - before.window.left,
                                                 before.cancel.top - half - before.window.top + 2))
            << count;
        EXPECT_EQ(after.replace.TopLeft(),
                  CPoint(before.replace.left, before.replace.top - half - before.window.top + 2))
            << count;
    }
}

TEST_F(ChoiceDialogWindow, IsCutToTwoColumnsForFourChoices) {
    CWatchedDlg before;
    const Arranged after = RunArranged(before, 4);
    const int third = before.window.Width() / 3;
    const int y = before.ok.top - before.window.top - 25;
    EXPECT_EQ(after.window.Size(), CSize(third * 2, before.window.Height()));
    EXPECT_EQ(after.ok.TopLeft(), CPoint(before.ok.left - third - before.window.left, y));
    EXPECT_EQ(after.cancel.TopLeft(), CPoint(before.cancel.left - third - before.window.left, y));
}

TEST_F(ChoiceDialogWindow, LeavesReplaceWhereItIsForFourAndMoreChoices) {
    for (const int count : {4, 5, 6}) {
        WriteSlides(count);
        CTavrinSelMaskDlg dialog;
        Run(dialog, count, [&](HWND window) {
            const CRect replace = RectOf(window, ::GetDlgItem(window, IDC_CHOICE_REPLACE));
            EXPECT_TRUE(replace.EqualRect(Mapped(window, 92, 312, 53, 14))) << count;
            PressCloseBox(window);
        });
    }
}

TEST_F(ChoiceDialogWindow, KeepsItsSizeForFiveAndSixChoices) {
    for (const int count : {5, 6}) {
        CWatchedDlg before;
        const Arranged after = RunArranged(before, count);
        EXPECT_EQ(after.window.Size(), before.window.Size()) << count;
        EXPECT_EQ(after.cancel.left - after.ok.left, before.cancel.left - before.ok.left) << count;
        EXPECT_EQ(after.ok.top, after.cancel.top) << count;
    }
}

TEST_F(ChoiceDialogWindow, KeepsTheSizeOfEveryButton) {
    for (const int count : {1, 2, 3, 4, 5, 6}) {
        CWatchedDlg before;
        const Arranged after = RunArranged(before, count);
        EXPECT_EQ(after.ok.Size(), before.ok.Size()) << count;
        EXPECT_EQ(after.cancel.Size(), before.cancel.Size()) << count;
        EXPECT_EQ(after.replace.Size(), before.replace.Size()) << count;
    }
}

TEST_F(ChoiceDialogWindow, IsCentredOverItsOwner) {
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP | WS_VISIBLE, CRect(300, 200, 1501, 1001),
                   nullptr, 0);
    for (const int count : {1, 2, 3, 4, 5, 6}) {
        CWatchedDlg dialog(&owner);
        const CRect window = RunArranged(dialog, count).window;
        EXPECT_NEAR(window.CenterPoint().x, 900, 1) << count;
        EXPECT_NEAR(window.CenterPoint().y, 600, 1) << count;
    }
    owner.DestroyWindow();
}

}  // namespace
