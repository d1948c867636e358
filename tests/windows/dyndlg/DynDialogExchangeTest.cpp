// The exchange of values, with real controls, into them and back.
#include <afxcmn.h>
#include <afxdisp.h>
#include <afxdtctl.h>

#include "tests/windows/dyndlg/DynDialogFixture.h"

namespace {

constexpr UINT id = 400;

class DynDialogExchange : public DynDialog {
protected:
    // Runs a dialog with one control; `look` sees the control with the value in it and may change it.
    INT_PTR Run(const wchar_t* className, DWORD style, void* data, std::function<void(HWND)> look,
                int button = IDOK) {
        CDynDialogEx dialog(&m_parent);
        const CRect rect(10, 10, 150, 100);
        dialog.AddDlgControl(className, L"caption", style, 0, &rect, data, id);
        bool looked = false;
        const INT_PTR result = RunAndPress(dialog, button, [&](HWND window) {
            looked = true;
            look(::GetDlgItem(window, id));
        });
        EXPECT_TRUE(looked);
        return result;
    }
};

TEST_F(DynDialogExchange, AnAutoRadioButtonNamesTheOneOfItsGroup) {
    for (const int initial : {-1, 0, 1, 2}) {
        CDynDialogEx dialog(&m_parent);
        int chosen = initial;
        dialog.AddDlgControl(L"BUTTON", L"a", tabbed | WS_GROUP | BS_AUTORADIOBUTTON, 0, nullptr, &chosen,
                             410);
        dialog.AddDlgControl(L"BUTTON", L"b", plain | BS_AUTORADIOBUTTON, 0, nullptr, nullptr, 411);
        dialog.AddDlgControl(L"BUTTON", L"c", plain | BS_AUTORADIOBUTTON, 0, nullptr, nullptr, 412);
        dialog.AddDlgControl(L"STATIC", L"the group ends here", plain | WS_GROUP, 0, nullptr, nullptr, 0);
        RunWithOk(dialog, [&](HWND window) {
            for (int button = 0; button < 3; ++button) {
                EXPECT_EQ(::IsDlgButtonChecked(window, 410 + button),
                          button == initial ? BST_CHECKED : BST_UNCHECKED);
            }
            ::SendDlgItemMessageW(window, 410 + (initial + 1) % 3, BM_CLICK, 0, 0);
        });
        EXPECT_EQ(chosen, (initial + 1) % 3);
    }
}

TEST_F(DynDialogExchange, AnAutoCheckBoxIsOnOrOff) {
    for (const int initial : {0, 1}) {
        int value = initial;
        Run(L"BUTTON", tabbed | BS_AUTOCHECKBOX, &value, [&](HWND control) {
            EXPECT_EQ(::SendMessageW(control, BM_GETCHECK, 0, 0), initial);
            ::SendMessageW(control, BM_CLICK, 0, 0);
        });
        EXPECT_EQ(value, 1 - initial);
    }
}

TEST_F(DynDialogExchange, AnyOtherButtonIsTheCallersObject) {
    for (const DWORD style : {BS_PUSHBUTTON, BS_CHECKBOX, BS_AUTO3STATE}) {
        CButton button;
        Run(L"BUTTON", tabbed | style, &button, [&](HWND control) {
            EXPECT_EQ(button.m_hWnd, control);
            EXPECT_EQ(CWnd::FromHandlePermanent(control), &button);
            EXPECT_EQ(TextOf(control), L"caption");
        });
        EXPECT_EQ(button.m_hWnd, nullptr);
    }
}

TEST_F(DynDialogExchange, AnEditHoldsAText) {
    CString text = L"Porta \u00E0 \u4E2D";
    Run(L"EDIT", tabbed | ES_AUTOHSCROLL, &text, [](HWND control) {
        EXPECT_EQ(TextOf(control), L"Porta \u00E0 \u4E2D");
        ::SendMessageW(control, EM_SETSEL, 0, -1);
        for (const wchar_t character : {L'x', L'\u20AC'}) {
            ::SendMessageW(control, WM_CHAR, character, 1);
        }
    });
    EXPECT_STREQ(text, L"x\u20AC");
}

TEST_F(DynDialogExchange, AStaticHoldsAText) {
    CString text = L"shown";
    Run(L"STATIC", plain, &text, [](HWND control) {
        EXPECT_EQ(TextOf(control), L"shown");
        ::SetWindowTextW(control, L"changed");
    });
    EXPECT_STREQ(text, L"changed");
}

TEST_F(DynDialogExchange, AScrollBarHoldsItsPosition) {
    CTestDialog dialog(&m_parent);
    int position = 30;
    dialog.AddDlgControl(L"SCROLLBAR", L"", tabbed | SBS_HORZ, 0, nullptr, &position, id);
    // A new scroll bar has no range at all; a derived class gives it one before the exchange.
    dialog.beforeInit = [&] { ::SetScrollRange(::GetDlgItem(dialog, id), SB_CTL, 0, 100, FALSE); };
    RunWithOk(dialog, [](HWND window) {
        const HWND control = ::GetDlgItem(window, id);
        EXPECT_EQ(::GetScrollPos(control, SB_CTL), 30);
        ::SetScrollPos(control, SB_CTL, 70, TRUE);
    });
    EXPECT_EQ(position, 70);
}

TEST_F(DynDialogExchange, ATrackbarHoldsItsPosition) {
    int position = 30;
    Run(L"msctls_trackbar32", tabbed, &position, [](HWND control) {
        EXPECT_EQ(::SendMessageW(control, TBM_GETPOS, 0, 0), 30);
        ::SendMessageW(control, WM_KEYDOWN, VK_RIGHT, 1);
    });
    EXPECT_EQ(position, 31);
}

TEST_F(DynDialogExchange, ADatePickerHoldsADate) {
    COleDateTime date(2024, 2, 29, 0, 0, 0);
    Run(L"SysDateTimePick32", tabbed | DTS_RIGHTALIGN, &date, [](HWND control) {
        SYSTEMTIME shown = {};
        ASSERT_EQ(::SendMessageW(control, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&shown)), GDT_VALID);
        EXPECT_EQ(shown.wYear, 2024);
        EXPECT_EQ(shown.wMonth, 2);
        EXPECT_EQ(shown.wDay, 29);
        shown.wYear = 2025;
        shown.wMonth = 12;
        shown.wDay = 31;
        ::SendMessageW(control, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&shown));
    });
    EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(date.GetYear(), 2025);
    EXPECT_EQ(date.GetMonth(), 12);
    EXPECT_EQ(date.GetDay(), 31);
}

TEST_F(DynDialogExchange, ATimePickerHoldsATime) {
    CTime time(2024, 2, 29, 13, 14, 15);
    Run(L"SysDateTimePick32", tabbed | DTS_TIMEFORMAT | DTS_RIGHTALIGN, &time, [](HWND control) {
        SYSTEMTIME shown = {};
        ASSERT_EQ(::SendMessageW(control, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&shown)), GDT_VALID);
        EXPECT_EQ(shown.wHour, 13);
        EXPECT_EQ(shown.wMinute, 14);
        EXPECT_EQ(shown.wSecond, 15);
        shown.wHour = 1;
        shown.wMinute = 2;
        shown.wSecond = 3;
        ::SendMessageW(control, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&shown));
    });
    EXPECT_EQ(time.GetHour(), 1);
    EXPECT_EQ(time.GetMinute(), 2);
    EXPECT_EQ(time.GetSecond(), 3);
}

TEST_F(DynDialogExchange, AMonthCalendarHoldsADate) {
    COleDateTime date(2024, 2, 29, 0, 0, 0);
    Run(L"SysMonthCal32", tabbed, &date, [](HWND control) {
        SYSTEMTIME shown = {};
        ASSERT_TRUE(::SendMessageW(control, MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&shown)));
        EXPECT_EQ(shown.wYear, 2024);
        EXPECT_EQ(shown.wMonth, 2);
        EXPECT_EQ(shown.wDay, 29);
        shown.wMonth = 3;
        shown.wDay = 1;
        ::SendMessageW(control, MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&shown));
    });
    EXPECT_EQ(date.GetYear(), 2024);
    EXPECT_EQ(date.GetMonth(), 3);
    EXPECT_EQ(date.GetDay(), 1);
}

TEST_F(DynDialogExchange, EveryOtherClassIsTheCallersObject) {
    // The system registers this class only with its library.
    const HMODULE richEdit = ::LoadLibraryW(L"riched32.dll");
    ASSERT_NE(richEdit, nullptr);
    for (const wchar_t* name : {L"LISTBOX", L"COMBOBOX", L"msctls_updown32", L"msctls_progress32",
                                L"msctls_hotkey32", L"SysListView32", L"SysTreeView32", L"SysTabControl32",
                                L"SysAnimate32", L"RICHEDIT", L"SysIPAddress32", L"ComboBoxEx32"}) {
        CWnd object;
        Run(name, tabbed, &object, [&](HWND control) {
            EXPECT_EQ(object.m_hWnd, control) << testing::PrintToString(name);
            EXPECT_EQ(CWnd::FromHandlePermanent(control), &object) << testing::PrintToString(name);
            EXPECT_EQ(::lstrcmpiW(ClassOf(control).c_str(), name), 0) << testing::PrintToString(name);
        });
        EXPECT_EQ(object.m_hWnd, nullptr) << testing::PrintToString(name);
    }
    ::FreeLibrary(richEdit);
}

TEST_F(DynDialogExchange, TheItemHasTheWindowOfAControlWhoseValueIsExchanged) {
    CTestDialog dialog(&m_parent);
    CString text;
    CButton button;
    dialog.AddDlgControl(L"EDIT", L"", tabbed, 0, nullptr, &text, 420);
    dialog.AddDlgControl(L"BUTTON", L"", tabbed, 0, nullptr, &button, 421);
    dialog.AddDlgControl(L"LISTBOX", L"", tabbed, 0, nullptr, nullptr, 422);
    RunWithOk(dialog, [&](HWND window) {
        EXPECT_EQ(dialog.GetItem(0)->m_hWnd, ::GetDlgItem(window, 420));
        EXPECT_EQ(dialog.GetItem(1)->m_hWnd, nullptr);
        EXPECT_EQ(dialog.GetItem(2)->m_hWnd, ::GetDlgItem(window, 422));
        EXPECT_EQ(&dialog.GetItem(0)->WindowObject(), dialog.GetItem(0));
        EXPECT_EQ(&dialog.GetItem(1)->WindowObject(), &button);
    });
}

TEST_F(DynDialogExchange, AControlWithoutVariableKeepsItsCaption) {
    Run(L"EDIT", tabbed, nullptr, [](HWND control) { EXPECT_EQ(TextOf(control), L"caption"); });
    Run(L"SysDateTimePick32", tabbed, nullptr, [](HWND control) { EXPECT_NE(control, nullptr); });
}

TEST_F(DynDialogExchange, CancelTakesNoValue) {
    int value = 0;
    EXPECT_EQ(Run(
                  L"BUTTON", tabbed | BS_AUTOCHECKBOX, &value,
                  [](HWND control) { ::SendMessageW(control, BM_CLICK, 0, 0); }, IDCANCEL),
              IDCANCEL);
    EXPECT_EQ(value, 0);
}

TEST_F(DynDialogExchange, RunsFromTheLastControlToTheFirst) {
    CDynDialogEx dialog(&m_parent);
    CString shared = L"both";
    dialog.AddDlgControl(L"EDIT", L"", tabbed, 0, nullptr, &shared, 430);
    dialog.AddDlgControl(L"EDIT", L"", tabbed, 0, nullptr, &shared, 431);
    RunWithOk(dialog, [](HWND window) {
        EXPECT_EQ(TextOf(::GetDlgItem(window, 430)), L"both");
        EXPECT_EQ(TextOf(::GetDlgItem(window, 431)), L"both");
        ::SetDlgItemTextW(window, 430, L"first");
        ::SetDlgItemTextW(window, 431, L"last");
    });
    EXPECT_STREQ(shared, L"first");
}

}  // namespace
