// Which controls a dialog has, where they stand and what they are called.
#include "tests/windows/dyndlg/DynDialogFixture.h"

namespace {

CRect RectInUnitsOf(const CDynDialogEx& dialog, INT_PTR index) {
    const DialogRect& rect = dialog.GetItem(index)->Control().rect;
    return {rect.left, rect.top, rect.right, rect.bottom};
}

TEST_F(DynDialog, PlacesControlsWithoutARectangleInRowsAboveTheStandardButtons) {
    CDynDialogEx dialog(&m_parent);
    dialog.AddDlgControl(L"STATIC", L"by name", plain, 0, nullptr, nullptr, 0);
    dialog.AddDlgControl(CT_EDIT, L"by code", tabbed, 0, nullptr, nullptr, 0);
    dialog.AddSubclassedDlgControl(L"BUTTON", L"in the template", tabbed, 0, nullptr, 0);
    EXPECT_EQ(RectInUnitsOf(dialog, 0), CRect(10, 10, 270, 22));
    EXPECT_EQ(RectInUnitsOf(dialog, 1), CRect(10, 22, 120, 34));
    EXPECT_EQ(RectInUnitsOf(dialog, 2), CRect(10, 34, 270, 46));
    RunWithOk(dialog, [&](HWND window) {
        EXPECT_EQ(ClientRectOf(::GetDlgItem(window, IDOK)), ToPixels(window, CRect(10, 52, 60, 66)));
        EXPECT_EQ(ClientRectOf(::GetDlgItem(window, IDCANCEL)), ToPixels(window, CRect(65, 52, 115, 66)));
        EXPECT_EQ(TextOf(::GetDlgItem(window, IDOK)), L"OK");
        EXPECT_EQ(TextOf(::GetDlgItem(window, IDCANCEL)), L"Annuleren");
        for (const int id : {IDOK, IDCANCEL}) {
            EXPECT_EQ(ClassOf(::GetDlgItem(window, id)), L"Button");
            EXPECT_EQ(::GetWindowLong(::GetDlgItem(window, id), GWL_STYLE) & 0xFFFF000F, 0x50010000);
        }
    });
    dialog.AddDlgControl(L"STATIC", L"", plain, 0, nullptr, nullptr, 0);
    EXPECT_EQ(RectInUnitsOf(dialog, 5), CRect(10, 76, 270, 88));
}

TEST_F(DynDialog, HasNoStandardButtonsOnRequest) {
    CDynDialogEx dialog(&m_parent);
    dialog.SetUseSystemButtons(false);
    RunWithOk(dialog, [](HWND window) { EXPECT_EQ(::GetWindow(window, GW_CHILD), nullptr); });
    EXPECT_EQ(dialog.GetItemCount(), 0);
}

TEST_F(DynDialog, AddsTheStandardButtonsAgainWhenItRunsAgain) {
    CDynDialogEx dialog(&m_parent);
    EXPECT_EQ(RunWithOk(dialog), IDOK);
    EXPECT_EQ(dialog.GetItemCount(), 2);
    EXPECT_EQ(RunAndPress(dialog, IDCANCEL,
                          [](HWND window) {
                              int buttons = 0;
                              for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr;
                                   child = ::GetWindow(child, GW_HWNDNEXT)) {
                                  ++buttons;
                              }
                              EXPECT_EQ(buttons, 4);
                          }),
              IDCANCEL);
    EXPECT_EQ(dialog.GetItemCount(), 4);
    EXPECT_EQ(RectInUnitsOf(dialog, 0).top, 16);
    EXPECT_EQ(RectInUnitsOf(dialog, 2).top, 46);
}

TEST_F(DynDialog, IsAsLargeAsItsControlsAndAMargin) {
    CDynDialogEx dialog(&m_parent);
    dialog.SetUseSystemButtons(false);
    const CRect rect(7, 7, 200, 100);
    dialog.AddDlgControl(L"EDIT", L"", tabbed, 0, &rect, nullptr, 0);
    RunWithOk(dialog, [](HWND window) {
        CRect client;
        ::GetClientRect(window, &client);
        EXPECT_EQ(client, ToPixels(window, CRect(0, 0, 205, 105)));
    });
}

TEST_F(DynDialog, TakesRectanglesAsPixelsUntilItsUnitsAreKnown) {
    CTestDialog dialog(&m_parent);
    const CRect rect(7, 8, 107, 58);
    const UINT id = dialog.AddDlgControl(L"EDIT", L"", tabbed, 0, &rect, nullptr, 0);
    bool looked = false;
    dialog.beforeInit = [&] {
        looked = true;
        EXPECT_EQ(ClientRectOf(::GetDlgItem(dialog, static_cast<int>(id))), rect);
    };
    RunWithOk(dialog, [&](HWND window) {
        EXPECT_EQ(ClientRectOf(::GetDlgItem(window, static_cast<int>(id))), ToPixels(window, rect));
        EXPECT_NE(ToPixels(window, rect), rect);
    });
    EXPECT_TRUE(looked);
    EXPECT_EQ(RectInUnitsOf(dialog, 0), rect);
}

TEST_F(DynDialog, ShowsItsCaptionInACaptionBarWithASystemMenu) {
    CDynDialogEx dialog(&m_parent);
    dialog.SetWindowTitle(L"Dimensioni \u00E0\u4E2D");
    RunWithOk(dialog, [](HWND window) {
        EXPECT_EQ(TextOf(window), L"Dimensioni \u00E0\u4E2D");
        const auto style = static_cast<DWORD>(::GetWindowLong(window, GWL_STYLE));
        EXPECT_EQ(style & (WS_VISIBLE | WS_CAPTION | WS_SYSMENU), WS_VISIBLE | WS_CAPTION | WS_SYSMENU);
        EXPECT_NE(::GetWindowLong(window, GWL_EXSTYLE) & WS_EX_DLGMODALFRAME, 0);
    });
}

// A dialog that notes where it and its parent are when it has been made. The window manager may move either,
// once the dialog is on the screen.
class CNotedDialog : public CDynDialogEx {
public:
    using CDynDialogEx::CDynDialogEx;

    CPoint center;
    CPoint parentCenter;

protected:
    BOOL OnInitDialog() override {
        const BOOL focus = CDynDialogEx::OnInitDialog();
        CRect rect;
        GetWindowRect(&rect);
        center = rect.CenterPoint();
        ::GetWindowRect(::GetWindow(m_hWnd, GW_OWNER), &rect);
        parentCenter = rect.CenterPoint();
        return focus;
    }
};

class DynDialogPosition : public DynDialog {
protected:
    void ExpectInTheMiddle() {
        RunWithOk(m_dialog);
        EXPECT_NEAR(m_dialog.center.x, m_dialog.parentCenter.x, 2);
        EXPECT_NEAR(m_dialog.center.y, m_dialog.parentCenter.y, 2);
    }

    CNotedDialog m_dialog{&m_parent};
};

TEST_F(DynDialogPosition, StandsInTheMiddleOfItsParent) {
    ExpectInTheMiddle();
}

TEST_F(DynDialog, IsOwnedByItsParentWhichIsDisabledMeanwhile) {
    CDynDialogEx dialog(&m_parent);
    RunWithOk(dialog, [this](HWND window) {
        EXPECT_EQ(::GetWindow(window, GW_OWNER), m_parent.m_hWnd);
        EXPECT_FALSE(m_parent.IsWindowEnabled());
    });
    EXPECT_TRUE(m_parent.IsWindowEnabled());
}

TEST_F(DynDialogPosition, StandsInTheMiddleWhereverItsControlsBegin) {
    const CRect rect(-20, -10, 100, 30);
    m_dialog.AddDlgControl(L"EDIT", L"", tabbed, 0, &rect, nullptr, 0);
    ExpectInTheMiddle();
}

TEST_F(DynDialog, GivesAnIdFromOneCounterToEveryControlThatAsksForOne) {
    CDynDialogEx first(&m_parent);
    const UINT id = first.AddDlgControl(L"STATIC", L"", plain, 0, nullptr, nullptr, 0);
    EXPECT_GE(id, 1024U);
    EXPECT_EQ(first.AddDlgControl(CT_STATIC, L"", plain, 0, nullptr, nullptr, 0), id + 1);
    EXPECT_EQ(first.AddDlgControl(L"STATIC", L"", plain, 0, nullptr, nullptr, 77), 77U);
    EXPECT_EQ(first.AddSubclassedDlgControl(L"STATIC", L"", plain, 0, nullptr, 0), id + 2);
    CDynDialogEx second(&m_parent);
    EXPECT_EQ(second.AddDlgControl(L"STATIC", L"", plain, 0, nullptr, nullptr, 0), id + 3);
    RunWithOk(first, [id](HWND window) {
        for (const UINT present : {id, id + 1, 77U, id + 2}) {
            EXPECT_NE(::GetDlgItem(window, static_cast<int>(present)), nullptr) << present;
        }
    });
}

TEST_F(DynDialog, FindsTheTypeByTheNameAndTheNameByTheType) {
    CDynDialogEx dialog(&m_parent);
    dialog.AddDlgControl(L"EDITX", L"a", 1, 2, nullptr, nullptr, 0);
    dialog.AddDlgControl(L"Button", L"b", 3, 4, nullptr, nullptr, 0);
    dialog.AddDlgControl(CT_MONTHCAL, L"c", 5, 6, nullptr, nullptr, 0);
    dialog.AddDlgControl(200U, L"d", 7, 8, nullptr, nullptr, 0);
    dialog.AddSubclassedDlgControl(L"SCROLLBAR", L"e", 9, 10, nullptr, 0);
    const struct {
        UINT code;
        const wchar_t* className;
    } expected[] = {
        {129, L"EDITX"}, {0, L"Button"}, {144, L"SysMonthCal32"}, {200, L""}, {132, L"SCROLLBAR"}};
    for (INT_PTR index = 0; index < 5; ++index) {
        const DynControl& control = dialog.GetItem(index)->Control();
        EXPECT_EQ(control.typeCode, expected[index].code) << index;
        EXPECT_EQ(std::wstring(control.className), expected[index].className) << index;
        EXPECT_EQ(std::wstring(control.caption), std::wstring(1, static_cast<wchar_t>(L'a' + index)));
        EXPECT_EQ(control.style, static_cast<DWORD>(2 * index + 1));
        EXPECT_EQ(control.exStyle, static_cast<DWORD>(2 * index + 2));
        EXPECT_EQ(control.subclassed, index == 4);
    }
}

TEST_F(DynDialog, RefusesAnIndexOutsideItsControls) {
    CDynDialogEx dialog(&m_parent);
    dialog.AddDlgControl(L"STATIC", L"", plain, 0, nullptr, nullptr, 0);
    for (const INT_PTR index : {INT_PTR{-1}, INT_PTR{1}, INT_PTR{1000}}) {
        bool refused = false;
        try {
            dialog.GetItem(index);
        } catch (CInvalidArgException* exception) {
            refused = true;
            exception->Delete();
        }
        EXPECT_TRUE(refused) << index;
    }
    EXPECT_NE(dialog.GetItem(0), nullptr);
}

}  // namespace
