// The items that are edited in a dialog, each with its real dialog: confirmed, cancelled, and with the rows
// removed meanwhile.
#include <afxdtctl.h>
#include <commctrl.h>

#include "propgrid/editors/FolderBrowser.h"
#include "tests/windows/propgrid/GridInputFixture.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/ModalDriver.h"
#include "tests/windows/support/TempFolder.h"

namespace {

constexpr int redField = 706, openFileName = 1148;  // of the system's dialogs

class GridModalEdit : public GridInputTest {
protected:
    // Tall enough for a row of each kind.
    GridModalEdit() {
        grid.MoveWindow(0, 0, 300, 360);
        grid.SetOkText(L"Va bene");
        grid.SetCancelText(L"Annulla");
        grid.SetDateText(L"Data");
        grid.SetTimeText(L"Ora");
    }
    ~GridModalEdit() override {
        EXPECT_EQ(driver.StepsLeft(), 0U) << "an expected dialog did not open";
        EXPECT_TRUE(parent.IsWindowEnabled());
        FolderBrowseTitle() = L"Choose a directory";
    }

    // Opens the item's dialog with its button; `act` works in it and then a button is pressed.
    void Edit(UINT item, int button, CModalDriver::Step act = {}) {
        driver.Then([this, button, act](HWND dialog) {
            EXPECT_EQ(::GetWindow(dialog, GW_OWNER), parent.m_hWnd);
            if (act) {
                act(dialog);
            }
            PressButton(dialog, button);
        });
        Focus(item);
        ClickOn(ButtonOf(item));
    }
    static HWND ChildOf(HWND dialog, const wchar_t* className, int number = 0) {
        HWND child = nullptr;
        for (int passed = 0; passed <= number; ++passed) {
            child = ::FindWindowEx(dialog, child, className, nullptr);
        }
        return child;
    }
    static std::wstring Caption(HWND dialog, int id) { return TextOf(::GetDlgItem(dialog, id)); }
    // The rectangle of a control in dialog units.
    static void ExpectAt(HWND dialog, HWND control, CRect units) {
        ::MapDialogRect(dialog, units);
        CRect rect;
        ::GetWindowRect(control, &rect);
        ::MapWindowPoints(nullptr, dialog, reinterpret_cast<LPPOINT>(&rect), 2);
        EXPECT_EQ(rect, units);
    }
    static SYSTEMTIME TimeOf(HWND picker) {
        SYSTEMTIME time = {};
        ::SendMessage(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time));
        return time;
    }
    static void SetTime(HWND picker, const SYSTEMTIME& time) {
        ::SendMessage(picker, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&time));
    }
    // Whether the last edit sent one notification, after its value was stored, or none.
    void ExpectNotified(UINT item) {
        EXPECT_EQ(parent.changedItems, Ids{item});
        EXPECT_EQ(parent.changedValues, Texts{ShownValue(grid, item)});
        parent.ForgetChanges();
    }
    void ExpectNotNotified() { EXPECT_TRUE(parent.changedItems.empty()); }

    CModalDriver driver;
};

// ---- Texts

TEST_F(GridModalEdit, ATextIsEditedInADialogOfItsOwn) {
    const UINT item = grid.AddTextItem(section, L"Note", L"one\r\ntwo", true, true);
    Edit(item, IDOK, [](HWND dialog) {
        EXPECT_EQ(TextOf(dialog), L"Note");
        EXPECT_EQ(Caption(dialog, IDOK), L"Va bene");
        EXPECT_EQ(Caption(dialog, IDCANCEL), L"Annulla");
        const HWND edit = ChildOf(dialog, L"Edit");
        EXPECT_EQ(TextOf(edit), L"one\r\ntwo");
        EXPECT_EQ(static_cast<DWORD>(::GetWindowLong(edit, GWL_STYLE)), 0x503110C4U);
        EXPECT_NE(::GetWindowLong(edit, GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
        ExpectAt(dialog, edit, CRect(7, 7, 200, 100));
        ExpectAt(dialog, ::GetDlgItem(dialog, IDOK), CRect(56, 106, 106, 120));
        ExpectAt(dialog, ::GetDlgItem(dialog, IDCANCEL), CRect(110, 106, 160, 120));
        EXPECT_EQ(ChildOf(dialog, L"Button", 2), nullptr);
        LOGFONT font = {};
        ::GetObject(reinterpret_cast<HFONT>(::SendMessage(edit, WM_GETFONT, 0, 0)), sizeof(font), &font);
        EXPECT_EQ(font.lfHeight, -12);
        ::SetWindowText(edit, L"three\r\nfour");
    });
    EXPECT_EQ(Value<std::wstring>(item), L"three\r\nfour");
    EXPECT_FALSE(grid.IsItemUndefined(item));
    ExpectNotified(item);
}

TEST_F(GridModalEdit, ACancelledTextStaysAsItWas) {
    const UINT item = grid.AddTextItem(section, L"Note", L"one", true, true);
    Edit(item, IDCANCEL, [](HWND dialog) { ::SetWindowText(ChildOf(dialog, L"Edit"), L"x"); });
    EXPECT_TRUE(grid.IsItemUndefined(item));
    grid.SetItemUndefined(item, false);
    EXPECT_EQ(Value<std::wstring>(item), L"one");
    ExpectNotNotified();
}

TEST_F(GridModalEdit, AConfirmedTextNotifiesEvenIfItIsTheSame) {
    const UINT item = grid.AddTextItem(section, L"Note", L"one");
    Edit(item, IDOK);
    EXPECT_EQ(Value<std::wstring>(item), L"one");
    ExpectNotified(item);
}

TEST_F(GridModalEdit, ATextOf100000CharactersComesBackWhole) {
    const std::wstring longText(100000, L'x');
    const UINT item = grid.AddTextItem(section, L"Note", longText);
    Edit(item, IDOK);
    EXPECT_EQ(Value<std::wstring>(item), longText);
}

TEST_F(GridModalEdit, OpensByADoubleClickToo) {
    const UINT item = grid.AddTextItem(section, L"Note", L"one");
    driver.Then([](HWND dialog) { PressButton(dialog, IDOK); });
    DoubleClickOn(NameOf(item));
    ExpectNotified(item);
}

TEST_F(GridModalEdit, NeverOpensOnAnItemThatIsNotEditable) {
    const UINT first = AddAllKinds(L"kinds");
    for (UINT item = first; item < first + 13; ++item) {
        grid.SetItemEditable(item, false);
        Focus(item);
        ClickOn(ButtonOf(item));
        ExpectNoEditorLeft();
    }
    DoubleClickOn(NameOf(first + IT_TEXT));
    ExpectNotNotified();
}

TEST_F(GridModalEdit, ButtonsOpenOnReleaseOnly) {
    const UINT item = grid.AddTextItem(section, L"Note", L"one");
    ClickOn(ValueOf(item));
    ClickOn(NameOf(item));
    Press(ButtonOf(item));
    Release(CPoint(20, 190));
    ExpectNotNotified();
}

// ---- Dates with times

TEST_F(GridModalEdit, ADateAndTimeAreEditedWithTwoPickers) {
    const UINT item =
        grid.AddDateTimeItem(section, L"When", COleDateTime(2024, 2, 29, 13, 14, 15), L"%Y-%m-%d %H:%M:%S");
    Edit(item, IDOK, [](HWND dialog) {
        EXPECT_EQ(TextOf(dialog), L"When");
        EXPECT_EQ(TextOf(ChildOf(dialog, L"Static", 0)), L"Data");
        EXPECT_EQ(TextOf(ChildOf(dialog, L"Static", 1)), L"Ora");
        const HWND day = ChildOf(dialog, DATETIMEPICK_CLASS, 0);
        const HWND time = ChildOf(dialog, DATETIMEPICK_CLASS, 1);
        EXPECT_EQ(static_cast<DWORD>(::GetWindowLong(day, GWL_STYLE)) & 0xFFFF00FFU, 0x50010020U);
        EXPECT_EQ(static_cast<DWORD>(::GetWindowLong(time, GWL_STYLE)) & 0xFFFF00FFU, 0x50010029U);
        ExpectAt(dialog, ChildOf(dialog, L"Static", 0), CRect(7, 3, 60, 12));
        ExpectAt(dialog, ChildOf(dialog, L"Static", 1), CRect(67, 3, 120, 12));
        ExpectAt(dialog, day, CRect(7, 13, 60, 26));
        ExpectAt(dialog, time, CRect(67, 13, 120, 26));
        ExpectAt(dialog, ::GetDlgItem(dialog, IDOK), CRect(7, 37, 60, 51));
        ExpectAt(dialog, ::GetDlgItem(dialog, IDCANCEL), CRect(67, 37, 120, 51));
        EXPECT_EQ(ChildOf(dialog, L"Button", 2), nullptr);
        SYSTEMTIME shownDay = TimeOf(day), shownTime = TimeOf(time);
        EXPECT_EQ(shownDay.wYear, 2024);
        EXPECT_EQ(shownDay.wDay, 29);
        EXPECT_EQ(shownTime.wHour, 13);
        EXPECT_EQ(shownTime.wSecond, 15);
        shownDay.wDay = 27;
        shownTime.wMinute = 59;
        SetTime(day, shownDay);
        SetTime(time, shownTime);
    });
    EXPECT_EQ(grid.GetItemText(item), L"2024-02-27 13:59:15");
    ExpectNotified(item);
    Edit(item, IDCANCEL, [](HWND dialog) {
        const HWND day = ChildOf(dialog, DATETIMEPICK_CLASS);
        SYSTEMTIME shown = TimeOf(day);
        shown.wYear = 1990;
        SetTime(day, shown);
    });
    EXPECT_EQ(grid.GetItemText(item), L"2024-02-27 13:59:15");
    ExpectNotNotified();
}

TEST_F(GridModalEdit, AnUnchangedDateAndTimeIsNoModification) {
    const UINT item = grid.AddDateTimeItem(section, L"When", COleDateTime(2024, 7, 29, 13, 14, 15));
    Edit(item, IDOK);
    EXPECT_FALSE(grid.IsItemModified(item));
}

// What counts seconds from 1970 on cannot hold such a day; its time of day it can. Neither can a clock that
// is set forward at two hold half past two.
class GridTimeOfDay : public GridModalEdit, public testing::WithParamInterface<COleDateTime> {};

TEST_P(GridTimeOfDay, IsKeptWhateverItsDay) {
    const UINT item = grid.AddDateTimeItem(section, L"When", GetParam());
    Edit(item, IDOK, [](HWND dialog) {
        EXPECT_EQ(TimeOf(ChildOf(dialog, DATETIMEPICK_CLASS, 1)).wMinute, GetParam().GetMinute());
    });
    EXPECT_FALSE(grid.IsItemModified(item));
}

INSTANTIATE_TEST_SUITE_P(Days, GridTimeOfDay,
                         testing::Values(COleDateTime(1960, 5, 6, 7, 8, 9),
                                         COleDateTime(2024, 3, 31, 2, 30, 0),
                                         COleDateTime(3500, 1, 2, 3, 4, 5)));

TEST_F(GridModalEdit, ADateThatIsNoneBecomesOne) {
    COleDateTime none;
    for (const COleDateTime::DateTimeStatus status : {COleDateTime::null, COleDateTime::invalid}) {
        none.SetStatus(status);
        const UINT item = grid.AddDateTimeItem(section, std::to_wstring(status), none, L"%Y-%m-%d %H:%M:%S");
        Edit(item, IDOK, [](HWND dialog) {
            SYSTEMTIME chosen = TimeOf(ChildOf(dialog, DATETIMEPICK_CLASS, 0));
            chosen.wYear = 1999;
            chosen.wMonth = 12;
            chosen.wDay = 31;
            SetTime(ChildOf(dialog, DATETIMEPICK_CLASS, 0), chosen);
            chosen.wHour = 23;
            chosen.wMinute = 58;
            chosen.wSecond = 57;
            SetTime(ChildOf(dialog, DATETIMEPICK_CLASS, 1), chosen);
        });
        EXPECT_EQ(grid.GetItemText(item), L"1999-12-31 23:58:57");
        ExpectNotified(item);
    }
}

ULONGLONG Ticks(const SYSTEMTIME& time) {
    FILETIME ticks = {};
    ::SystemTimeToFileTime(&time, &ticks);
    return ULONGLONG{ticks.dwHighDateTime} << 32 | ticks.dwLowDateTime;
}

TEST_F(GridModalEdit, ADateThatIsNoneIsShownAsNow) {
    COleDateTime none;
    none.SetStatus(COleDateTime::null);
    const UINT item = grid.AddDateTimeItem(section, L"When", none);
    SYSTEMTIME before = {};
    ::GetLocalTime(&before);
    before.wMilliseconds = 0;  // the pickers may drop theirs
    Edit(item, IDCANCEL, [&](HWND dialog) {
        SYSTEMTIME now = {};
        ::GetLocalTime(&now);
        for (const int picker : {0, 1}) {
            const ULONGLONG shown = Ticks(TimeOf(ChildOf(dialog, DATETIMEPICK_CLASS, picker)));
            EXPECT_GE(shown, Ticks(before)) << picker;
            EXPECT_LE(shown, Ticks(now)) << picker;
        }
    });
}

// ---- The system's dialogs

TEST_F(GridModalEdit, AFileIsChosenInTheSystemsDialog) {
    const CTempFolder folder;
    folder.Write(L"old.txt", "x");
    folder.Write(L"new.txt", "x");
    const UINT item = grid.AddFileItem(section, L"File", folder.Path(L"old.txt"), L"Texts|*.txt|All|*.*||");
    Edit(item, IDCANCEL, [](HWND dialog) { ::SetDlgItemText(dialog, openFileName, L"new.txt"); });
    EXPECT_EQ(Value<std::wstring>(item), folder.Path(L"old.txt"));
    ExpectNotNotified();
    Edit(item, IDOK, [](HWND dialog) {
        EXPECT_EQ(Caption(dialog, openFileName), L"old.txt");
        ::SetDlgItemText(dialog, openFileName, L"new.txt");
    });
    EXPECT_EQ(::lstrcmpi(Value<std::wstring>(item).c_str(), folder.Path(L"new.txt").c_str()), 0);
    ExpectNotified(item);
}

TEST_F(GridModalEdit, AFileWithoutFilterOrWithAPathThatIsNoneOpensTheDialogAllTheSame) {
    const std::wstring empty, longPath(100000, L'x');
    for (const std::wstring& path : {empty, longPath}) {
        const UINT item = grid.AddItem(section, IT_FILE, std::to_wstring(path.size()), &path);
        Edit(item, IDCANCEL);
        EXPECT_EQ(Value<std::wstring>(item), path);
    }
    ExpectNotNotified();
}

TEST_F(GridModalEdit, AFolderIsChosenInTheShellsBrowser) {
    const UINT item = grid.AddFolderItem(section, L"Folder", L"C:\\windows", L"Where to?", true, true);
    Edit(item, IDCANCEL);
    EXPECT_EQ(FolderBrowseTitle(), L"Where to?");
    EXPECT_TRUE(grid.IsItemUndefined(item));
    ExpectNotNotified();
    Edit(item, IDOK);
    EXPECT_EQ(::lstrcmpi(Value<std::wstring>(item).c_str(), L"C:\\windows"), 0);
    ExpectNotified(item);
}

TEST_F(GridModalEdit, AFolderWithoutTitleLeavesTheTitleThatIsThere) {
    const std::wstring paths[] = {L"", L"C:\\none\\such", std::wstring(100000, L'x')};
    for (const std::wstring& path : paths) {
        const UINT item = grid.AddItem(section, IT_FOLDER, std::to_wstring(path.size()), &path);
        Edit(item, IDCANCEL);
        EXPECT_EQ(Value<std::wstring>(item), path);
    }
    EXPECT_EQ(FolderBrowseTitle(), L"Choose a directory");
    ExpectNotNotified();
}

TEST_F(GridModalEdit, AColourIsChosenInTheSystemsDialog) {
    const UINT item = grid.AddColorItem(section, L"Colour", RGB(10, 20, 30));
    const auto chooseRed = [](HWND dialog) { ::SetDlgItemInt(dialog, redField, 200, FALSE); };
    Edit(item, IDCANCEL, chooseRed);
    EXPECT_EQ(Value<COLORREF>(item), RGB(10, 20, 30));
    ExpectNotNotified();
    Edit(item, IDOK, chooseRed);
    EXPECT_EQ(Value<COLORREF>(item), RGB(200, 20, 30));
    ExpectNotified(item);
}

TEST_F(GridModalEdit, AFontIsChosenInTheSystemsDialog) {
    LOGFONT font = {};
    font.lfHeight = -16;
    ::lstrcpy(font.lfFaceName, L"Tahoma");
    const UINT item = grid.AddFontItem(section, L"Font", font);
    constexpr int strikeOut = 1040;
    const auto strike = [](HWND dialog) { PressButton(dialog, strikeOut); };
    Edit(item, IDCANCEL, strike);
    EXPECT_FALSE(grid.IsItemModified(item));
    ExpectNotNotified();
    Edit(item, IDOK, strike);
    const auto chosen = Value<LOGFONTW>(item);
    EXPECT_STREQ(chosen.lfFaceName, L"Tahoma");
    EXPECT_EQ(chosen.lfHeight, -16);
    EXPECT_NE(chosen.lfStrikeOut, 0);
    ExpectNotified(item);
}

TEST_F(GridModalEdit, AFontWithoutFaceNameOrWithAFullOneOpensTheDialog) {
    LOGFONT font = {};
    const UINT without = grid.AddFontItem(section, L"without", font);
    std::fill(std::begin(font.lfFaceName), std::end(font.lfFaceName), L'x');
    const UINT full = grid.AddFontItem(section, L"full", font);
    for (const UINT item : {without, full}) {
        Edit(item, IDCANCEL);
        EXPECT_FALSE(grid.IsItemModified(item));
    }
    ExpectNotNotified();
}

TEST_F(GridModalEdit, ACustomItemsButtonReportsWhetherItChanged) {
    custom.mode = EM_MODAL;
    const UINT item = grid.AddCustomItem(section, L"Custom", &custom);
    Focus(item);
    ClickOn(ButtonOf(item));
    ExpectNotified(item);
    custom.buttonChanges = false;
    ClickOn(ButtonOf(item));
    EXPECT_EQ(custom.calls.size(), 2U);
    ExpectNotNotified();
}

// ---- What happens meanwhile

TEST_F(GridModalEdit, TheRowsMayBeRemovedWhileADialogRuns) {
    for (const EItemType kind : {IT_CUSTOM, IT_TEXT, IT_DATETIME, IT_FILE, IT_FOLDER, IT_COLOR, IT_FONT}) {
        custom.mode = EM_MODAL;
        grid.ResetContents();
        const UINT item = AddAllKinds(L"kinds") + kind;
        if (kind == IT_CUSTOM) {
            custom.during = [&] { grid.ResetContents(); };
            Focus(item);
            ClickOn(ButtonOf(item));
            custom.during = nullptr;
        } else {
            const std::wstring file = L"C:\\windows\\win.ini";
            if (kind == IT_FILE) {
                grid.SetItemValue(item, file);
            }
            Edit(item, IDOK, [&](HWND) { grid.ResetContents(); });
        }
        EXPECT_EQ(grid.GetItemCount(), 0U);
        ExpectNotNotified();
    }
}

TEST_F(GridModalEdit, ARowOfAnotherKindUnderTheSameIdIsLeftAlone) {
    const UINT item = grid.AddTextItem(section, L"Note", L"one");
    UINT another = 0;
    Edit(item, IDOK, [&](HWND) {
        grid.ResetContents();
        another = grid.AddStringItem(grid.AddSection(L""), L"other", L"mine");
    });
    ASSERT_EQ(another, item);
    EXPECT_EQ(Value<std::wstring>(another), L"mine");
    ExpectNotNotified();
}

TEST_F(GridModalEdit, TheGridMayBeDestroyedWhileADialogRuns) {
    const UINT item = grid.AddTextItem(section, L"Note", L"one");
    Edit(item, IDOK, [&](HWND dialog) {
        ::SetWindowText(ChildOf(dialog, L"Edit"), L"two");
        grid.DestroyWindow();
    });
    EXPECT_EQ(grid.m_hWnd, nullptr);
}

TEST_F(GridModalEdit, EscapeAndTheCloseBoxCancel) {
    const UINT item = grid.AddTextItem(section, L"Note", L"one");
    for (const bool closeBox : {false, true}) {
        driver.Then([=](HWND dialog) {
            const HWND edit = ChildOf(dialog, L"Edit");
            ::SetWindowText(edit, L"two");
            if (closeBox) {
                ::PostMessage(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
            } else {
                ::PostMessage(edit, WM_KEYDOWN, VK_ESCAPE, 1);
            }
        });
        Focus(item);
        ClickOn(ButtonOf(item));
        EXPECT_EQ(Value<std::wstring>(item), L"one");
        ExpectNotNotified();
    }
}

TEST_F(GridModalEdit, LeavesNothingBehind) {
    const UINT first = AddAllKinds(L"kinds");
    grid.SetItemValue(first + IT_FILE, L"C:\\windows\\win.ini");
    const auto cycle = [&](int button) {
        for (const EItemType kind : {IT_TEXT, IT_DATETIME, IT_FILE, IT_COLOR, IT_FONT}) {
            Edit(first + kind, button);
        }
        driver.Forget();
        parent.ForgetChanges();
        PumpMessages();
    };
    for (int warmUp = 0; warmUp < 2; ++warmUp) {
        cycle(IDOK);
    }
    const int objects = GdiObjectCount(), windows = WindowCount();
    const long long blocks = HeapBlockCount();
    for (int round = 0; round < 6; ++round) {
        cycle(round % 2 == 0 ? IDOK : IDCANCEL);
    }
    EXPECT_EQ(WindowCount(), windows);
    EXPECT_EQ(HeapBlockCount(), blocks);
    // The system's own dialogs keep a few objects of theirs; what the grid forgot would come each time.
    EXPECT_LT(GdiObjectCount(), objects + 6);
}

}  // namespace
