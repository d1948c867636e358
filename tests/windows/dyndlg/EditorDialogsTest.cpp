// The two dialogs that the property grid builds: the editor of a long text and the editor of a date with its
// time.
#include <afxdisp.h>
#include <afxdtctl.h>

#include "tests/windows/dyndlg/DynDialogFixture.h"
#include "tests/windows/support/HandleCount.h"

namespace {

// What a picker shows.
SYSTEMTIME ShownBy(HWND picker) {
    SYSTEMTIME shown = {};
    EXPECT_EQ(::SendMessageW(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&shown)), GDT_VALID);
    return shown;
}

class EditorDialogs : public DynDialog {
protected:
    EditorDialogs() {
        const LOGFONT font = MakeLogFont(L"Tahoma", -11);
        m_font.CreateFontIndirect(&font);
    }

    void Prepare(CDynDialogEx& dialog, const wchar_t* itemName) {
        dialog.SetUseSystemButtons(false);
        dialog.SetWindowTitle(itemName);
        dialog.SetFont(&m_font);
    }

    static void AddButton(CDynDialogEx& dialog, const wchar_t* caption, const CRect& rect, UINT id) {
        dialog.AddDlgControl(L"BUTTON", caption, 0x50010000, 0, &rect, nullptr, id);
    }

    INT_PTR RunTextEditor(CString& text, int button, CModalDriver::Step look) {
        CDynDialogEx dialog(&m_parent);
        Prepare(dialog, L"Note");
        const CRect edit(7, 7, 200, 100);
        m_editId = static_cast<int>(
            dialog.AddDlgControl(L"EDIT", text, 0x503110C4, WS_EX_CLIENTEDGE, &edit, &text, 0));
        AddButton(dialog, L"OK", CRect(56, 106, 106, 120), IDOK);
        AddButton(dialog, L"Annulla", CRect(110, 106, 160, 120), IDCANCEL);
        return RunAndPress(dialog, button, std::move(look));
    }

    INT_PTR RunDateEditor(COleDateTime& date, CTime& time, int button, CModalDriver::Step look) {
        CDynDialogEx dialog(&m_parent);
        Prepare(dialog, L"Data e ora");
        const CRect dateLabel(7, 3, 60, 12), timeLabel(67, 3, 120, 12);
        const CRect datePicker(7, 13, 60, 26), timePicker(67, 13, 120, 26);
        dialog.AddDlgControl(L"STATIC", L"Data:", 0x50000000, 0, &dateLabel, nullptr, 0);
        dialog.AddDlgControl(L"STATIC", L"Ora:", 0x50000000, 0, &timeLabel, nullptr, 0);
        m_dateId = static_cast<int>(
            dialog.AddDlgControl(L"SysDateTimePick32", L"", 0x50010020, 0, &datePicker, &date, 0));
        m_timeId = static_cast<int>(
            dialog.AddDlgControl(L"SysDateTimePick32", L"", 0x50010029, 0, &timePicker, &time, 0));
        AddButton(dialog, L"OK", CRect(7, 37, 60, 51), IDOK);
        AddButton(dialog, L"Annulla", CRect(67, 37, 120, 51), IDCANCEL);
        return RunAndPress(dialog, button, std::move(look));
    }

    CFont m_font;
    int m_editId = 0, m_dateId = 0, m_timeId = 0;
};

TEST_F(EditorDialogs, ATextIsTypedOverSeveralLines) {
    CString text = L"one\r\ntwo";
    EXPECT_EQ(RunTextEditor(text, IDOK,
                            [this](HWND window) {
                                const HWND edit = ::GetDlgItem(window, m_editId);
                                EXPECT_EQ(TextOf(window), L"Note");
                                EXPECT_EQ(TextOf(edit), L"one\r\ntwo");
                                EXPECT_EQ(::GetFocus(), edit);
                                EXPECT_EQ(ClientRectOf(edit), ToPixels(window, CRect(7, 7, 200, 100)));
                                EXPECT_EQ(FontOf(edit).lfHeight, -11);
                                EXPECT_NE(::GetWindowLong(edit, GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
                                ::SendMessageW(edit, EM_SETSEL, 3, 3);
                                for (const wchar_t key : {L' ', L'\u00E8', L'\r', L'x'}) {
                                    ::SendMessageW(edit, WM_CHAR, key, 1);
                                }
                            }),
              IDOK);
    EXPECT_STREQ(text, L"one \u00E8\r\nx\r\ntwo");
}

TEST_F(EditorDialogs, EnterBelongsToTheTextAndEscapeEndsTheEditor) {
    CString text = L"a";
    m_driver->Then([this](HWND window) {
        const HWND edit = ::GetDlgItem(window, m_editId);
        ::SendMessageW(edit, EM_SETSEL, 1, 1);
        ::PostMessageW(edit, WM_KEYDOWN, VK_RETURN, 1);
        EXPECT_TRUE(PumpUntil([&] { return TextOf(edit) == L"a\r\n"; }));
        ::PostMessageW(edit, WM_KEYDOWN, VK_ESCAPE, 1);
    });
    CDynDialogEx dialog(&m_parent);
    Prepare(dialog, L"Note");
    const CRect rect(7, 7, 200, 100);
    m_editId =
        static_cast<int>(dialog.AddDlgControl(L"EDIT", text, 0x503110C4, WS_EX_CLIENTEDGE, &rect, &text, 0));
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_STREQ(text, L"a");
}

TEST_F(EditorDialogs, ALongTextComesBackWhole) {
    std::wstring longText;
    while (longText.size() < 100000) {
        longText += L"A line of the text that is long enough.\r\n";
    }
    CString text = longText.c_str();
    EXPECT_EQ(
        RunTextEditor(text, IDOK,
                      [&](HWND window) { EXPECT_EQ(TextOf(::GetDlgItem(window, m_editId)), longText); }),
        IDOK);
    EXPECT_EQ(std::wstring(text), longText);
}

TEST_F(EditorDialogs, ADateAndATimeAreChosen) {
    COleDateTime date(2024, 2, 29, 13, 14, 15);
    CTime time(2024, 2, 29, 13, 14, 15);
    EXPECT_EQ(RunDateEditor(date, time, IDOK,
                            [this](HWND window) {
                                const HWND datePicker = ::GetDlgItem(window, m_dateId);
                                const HWND timePicker = ::GetDlgItem(window, m_timeId);
                                SYSTEMTIME day = ShownBy(datePicker);
                                EXPECT_EQ(day.wYear, 2024);
                                EXPECT_EQ(day.wMonth, 2);
                                EXPECT_EQ(day.wDay, 29);
                                SYSTEMTIME hour = ShownBy(timePicker);
                                EXPECT_EQ(hour.wHour, 13);
                                EXPECT_EQ(hour.wMinute, 14);
                                EXPECT_EQ(hour.wSecond, 15);
                                day.wYear = 1999;
                                day.wDay = 28;
                                ::SendMessageW(datePicker, DTM_SETSYSTEMTIME, GDT_VALID,
                                               reinterpret_cast<LPARAM>(&day));
                                hour.wHour = 23;
                                ::SendMessageW(timePicker, DTM_SETSYSTEMTIME, GDT_VALID,
                                               reinterpret_cast<LPARAM>(&hour));
                            }),
              IDOK);
    EXPECT_EQ(date.GetYear(), 1999);
    EXPECT_EQ(date.GetMonth(), 2);
    EXPECT_EQ(date.GetDay(), 28);
    EXPECT_EQ(time.GetHour(), 23);
    EXPECT_EQ(time.GetMinute(), 14);
    EXPECT_EQ(time.GetSecond(), 15);
}

TEST_F(EditorDialogs, ADateThatIsNoneBecomesOneByOk) {
    for (const COleDateTime::DateTimeStatus status : {COleDateTime::null, COleDateTime::invalid}) {
        COleDateTime date;
        date.SetStatus(status);
        CTime time(-1);  // what parts that are no time give
        EXPECT_EQ(RunDateEditor(date, time, IDOK,
                                [this](HWND window) {
                                    SYSTEMTIME day = ShownBy(::GetDlgItem(window, m_dateId));
                                    day.wYear = 1999;
                                    ::SendDlgItemMessageW(window, m_dateId, DTM_SETSYSTEMTIME, GDT_VALID,
                                                          reinterpret_cast<LPARAM>(&day));
                                    SYSTEMTIME hour = ShownBy(::GetDlgItem(window, m_timeId));
                                    hour.wHour = 7;
                                    ::SendDlgItemMessageW(window, m_timeId, DTM_SETSYSTEMTIME, GDT_VALID,
                                                          reinterpret_cast<LPARAM>(&hour));
                                }),
                  IDOK);
        EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
        EXPECT_EQ(date.GetYear(), 1999);
        EXPECT_EQ(time.GetHour(), 7);
    }
}

TEST_F(EditorDialogs, ADateIsLeftAloneByCancel) {
    COleDateTime date(2024, 2, 29, 0, 0, 0);
    CTime time(2024, 2, 29, 13, 14, 15);
    EXPECT_EQ(RunDateEditor(date, time, IDCANCEL,
                            [this](HWND window) {
                                SYSTEMTIME day = ShownBy(::GetDlgItem(window, m_dateId));
                                day.wYear = 1999;
                                ::SendDlgItemMessageW(window, m_dateId, DTM_SETSYSTEMTIME, GDT_VALID,
                                                      reinterpret_cast<LPARAM>(&day));
                            }),
              IDCANCEL);
    EXPECT_EQ(date.GetYear(), 2024);
    EXPECT_EQ(time.GetHour(), 13);
}

TEST_F(EditorDialogs, BothFitTheirControls) {
    const auto expectClientOf = [](HWND window, const CRect& units) {
        CRect client;
        ::GetClientRect(window, &client);
        EXPECT_EQ(client, ToPixels(window, units));
        for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT)) {
            CRect outside;
            ::SubtractRect(&outside, ClientRectOf(child), client);
            EXPECT_TRUE(outside.IsRectEmpty()) << testing::PrintToString(ClassOf(child));
        }
    };
    CString text;
    RunTextEditor(text, IDOK, [&](HWND window) { expectClientOf(window, CRect(0, 0, 205, 125)); });
    COleDateTime date(2024, 2, 29, 0, 0, 0);
    CTime time(2024, 2, 29, 13, 14, 15);
    RunDateEditor(date, time, IDOK, [&](HWND window) { expectClientOf(window, CRect(0, 0, 125, 56)); });
}

TEST_F(EditorDialogs, LeaveNothingBehind) {
    CString text = L"text";
    COleDateTime date(2024, 2, 29, 0, 0, 0);
    CTime time(2024, 2, 29, 13, 14, 15);
    const auto runBoth = [&](int button) {
        RunTextEditor(text, button, {});
        RunDateEditor(date, time, button, {});
        ForgetSteps();
    };
    for (int warmUp = 0; warmUp < 3; ++warmUp) {
        runBoth(IDOK);
    }
    const ProcessHoldings before = CountHoldings();
    for (int cycle = 0; cycle < 50; ++cycle) {
        runBoth(cycle % 2 == 0 ? IDOK : IDCANCEL);
    }
    EXPECT_EQ(CountHoldings(), before);
}

}  // namespace
