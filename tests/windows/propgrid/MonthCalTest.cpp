// The month calendar: how it opens, what mouse and keys do, each of its endings, and that nothing of it is
// touched after its message to the grid.
#include <ostream>

#include "propgrid/editors/PropertyGridMonthCalCtrl.h"
#include "tests/windows/propgrid/EditorFixture.h"
#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/Pixels.h"

namespace {

const Report dateChosen = {WM_GRID_DATE_CHOSEN, 0, {}};

// Opens a calendar in the grid as the grid does for a date; `cell` is its value in client coordinates.
CPropertyGridMonthCalCtrl& OpenCalendar(CEditorGrid& grid, const COleDateTime& date, CRect cell) {
    grid.ClientToScreen(&cell);
    const CRect under(cell.left, cell.bottom, cell.right, cell.bottom + 100);
    auto calendar = std::make_unique<CPropertyGridMonthCalCtrl>();
    EXPECT_TRUE(
        calendar->CreateEx(0, MONTHCAL_CLASS, nullptr, WS_POPUP | WS_BORDER, under, grid.GetParent(), 0));
    calendar->SetCurSel(date);
    calendar->SetOwner(&grid);
    calendar->SizeMinReq(TRUE);
    CRect rect;
    calendar->GetWindowRect(&rect);
    calendar->SetWindowPos(nullptr, cell.right - rect.Width(), rect.top, 0, 0,
                           SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
    CPropertyGridMonthCalCtrl& opened = *calendar;
    grid.editor = std::move(calendar);
    return opened;
}

class MonthCal : public EditorTest {
protected:
    CPropertyGridMonthCalCtrl& Open() {
        return OpenCalendar(grid, COleDateTime(2024, 2, 14, 0, 0, 0), Cell());
    }
    CPropertyGridMonthCalCtrl& Calendar() { return static_cast<CPropertyGridMonthCalCtrl&>(*grid.editor); }
    int SelectedDay() {
        COleDateTime date;
        EXPECT_TRUE(Calendar().GetCurSel(date));
        EXPECT_EQ(date.GetYear(), 2024);
        EXPECT_EQ(date.GetMonth(), 2);
        return date.GetDay();
    }
    // The first point of the window that hits the given part, or that day.
    static POINT Find(HWND calendar, UINT part, int day = 0) {
        CRect client;
        ::GetClientRect(calendar, &client);
        for (int y = 0; y < client.Height(); y += 3) {
            for (int x = 0; x < client.Width(); x += 3) {
                MCHITTESTINFO hit = {};
                hit.cbSize = sizeof(hit);
                hit.pt = {x, y};
                if (static_cast<UINT>(
                        ::SendMessage(calendar, MCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit))) == part &&
                    (day == 0 || hit.st.wDay == day)) {
                    return {x + 2, y + 2};
                }
            }
        }
        ADD_FAILURE() << "nothing there";
        return {0, 0};
    }
    static void Press(HWND calendar, POINT point) {
        const LPARAM position = MAKELPARAM(point.x, point.y);
        ::SendMessage(calendar, WM_LBUTTONDOWN, MK_LBUTTON, position);
        ::SendMessage(calendar, WM_LBUTTONUP, 0, position);
    }
    static void PressDay(HWND calendar, int day) { Press(calendar, Find(calendar, MCHT_CALENDARDATE, day)); }
};

// ---- Opening

TEST_F(MonthCal, IsAPopUpUnderTheCellThatAlignsWithItsRightEdge) {
    const CPropertyGridMonthCalCtrl& calendar = Open();
    EXPECT_EQ(calendar.GetStyle() & (WS_POPUP | WS_CHILD), static_cast<DWORD>(WS_POPUP));
    EXPECT_EQ(::GetWindow(calendar.m_hWnd, GW_OWNER), parent.m_hWnd);
    EXPECT_EQ(calendar.GetOwner(), &grid);
    CRect cell = Cell();
    grid.ClientToScreen(&cell);
    CRect rect;
    calendar.GetWindowRect(&rect);
    EXPECT_EQ(rect.top, cell.bottom);
    EXPECT_EQ(rect.right, cell.right);
    CRect smallest;
    calendar.GetMinReqRect(smallest);
    EXPECT_EQ(rect.Size(), smallest.Size());
}

TEST_F(MonthCal, ShowsTheDateAndHasTheFocus) {
    const CPropertyGridMonthCalCtrl& calendar = Open();
    EXPECT_TRUE(calendar.IsWindowVisible());
    EXPECT_EQ(::GetFocus(), calendar.m_hWnd);
    EXPECT_EQ(SelectedDay(), 14);
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(MonthCal, KnowsItsClass) {
    const CPropertyGridMonthCalCtrl calendar;
    EXPECT_TRUE(calendar.IsKindOf(RUNTIME_CLASS(CPropertyGridMonthCalCtrl)));
    EXPECT_TRUE(calendar.IsKindOf(RUNTIME_CLASS(CMonthCalCtrl)));
    EXPECT_STREQ(calendar.GetRuntimeClass()->m_lpszClassName, "CPropertyGridMonthCalCtrl");
}

TEST_F(MonthCal, WantsAllKeysOfADialog) {
    EXPECT_EQ(Open().SendMessage(WM_GETDLGCODE), DLGC_WANTALLKEYS);
}

// A value without a date opens the calendar on today.
TEST_F(MonthCal, OpensWithoutAValidDate) {
    COleDateTime none;
    none.SetStatus(COleDateTime::null);
    SYSTEMTIME today;
    ::GetLocalTime(&today);
    COleDateTime shown;
    ASSERT_TRUE(OpenCalendar(grid, none, Cell()).GetCurSel(shown));
    EXPECT_NEAR(shown.m_dt, COleDateTime(today).m_dt, 1.0);
}

// ---- Mouse and keys

TEST_F(MonthCal, ReportsOnceThatADayWasClicked) {
    int day = 0;
    grid.beforeClosing = [&] { day = SelectedDay(); };
    const HWND calendar = Open().m_hWnd;
    PressDay(calendar, 20);
    EXPECT_EQ(grid.reports, std::vector{dateChosen});
    EXPECT_EQ(day, 20) << "the selection is there to be read";
    EXPECT_FALSE(::IsWindow(calendar));
}

TEST_F(MonthCal, ReportsThatTheSelectedDayWasClicked) {
    PressDay(Open().m_hWnd, 14);
    EXPECT_EQ(grid.reports, std::vector{dateChosen});
}

TEST_F(MonthCal, AnswersTheNotificationOfAClickWithNothing) {
    grid.keepsEditor = true;
    NMSELCHANGE notification = {};
    notification.nmhdr = {Open().m_hWnd, 0, static_cast<UINT>(MCN_SELECT)};
    EXPECT_EQ(parent.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notification)), 0);
    EXPECT_EQ(grid.reports.size(), 1U);
}

TEST_F(MonthCal, ReportsNoClickThatOnlyTurnsTheMonth) {
    const HWND calendar = Open().m_hWnd;
    Press(calendar, Find(calendar, MCHT_TITLEBTNNEXT));
    EXPECT_TRUE(grid.reports.empty());
    EXPECT_TRUE(::IsWindow(calendar));
}

TEST_F(MonthCal, ReportsThatADayWasClickedAfterTheMonthWasTurned) {
    COleDateTime chosen;
    grid.beforeClosing = [&] { Calendar().GetCurSel(chosen); };
    const HWND calendar = Open().m_hWnd;
    Press(calendar, Find(calendar, MCHT_TITLEBTNNEXT));
    PressDay(calendar, 20);
    EXPECT_EQ(grid.reports, std::vector{dateChosen});
    EXPECT_EQ(chosen, COleDateTime(2024, 3, 20, 0, 0, 0));
}

TEST_F(MonthCal, IsChosenFromWithARealMouse) {
    ClickOn([&] { return Open().m_hWnd; },
            [](HWND calendar) { return Find(calendar, MCHT_CALENDARDATE, 21); });
    EXPECT_EQ(grid.reports, std::vector{dateChosen});
    EXPECT_EQ(grid.editor, nullptr);
}

TEST_F(MonthCal, LeavesOtherKeysToTheCalendar) {
    const HWND calendar = Open().m_hWnd;
    for (const UINT key : {VK_LEFT, VK_RIGHT, VK_SPACE, VK_TAB, VK_F4}) {
        ::SendMessage(calendar, WM_KEYDOWN, key, 1);
    }
    EXPECT_TRUE(::IsWindow(calendar));
    EXPECT_TRUE(grid.reports.empty());
}

// The calendar opens an edit of its own for the year.
TEST_F(MonthCal, StaysWhileAChildOfItsOwnHasTheFocus) {
    const HWND calendar = Open().m_hWnd;
    const HWND child = ::CreateWindowEx(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 40, 20, calendar,
                                        nullptr, nullptr, nullptr);
    ::SetFocus(child);
    EXPECT_TRUE(::IsWindow(calendar));
    EXPECT_EQ(::GetFocus(), child);
    ::SetFocus(calendar);
    EXPECT_TRUE(::IsWindow(calendar));
    ::SetFocus(grid.m_hWnd);
    EXPECT_FALSE(::IsWindow(calendar));
    EXPECT_TRUE(grid.reports.empty());
}

// The year is edited in an edit that has the focus instead of the calendar.
class MonthCalYear : public MonthCal {
protected:
    HWND OpenYear() {
        const HWND calendar = Open().m_hWnd;
        ::UpdateWindow(calendar);  // positions the year
        MonthCal::Press(calendar, Find(calendar, MCHT_TITLEYEAR));
        m_edit = ::GetFocus();
        EXPECT_EQ(::GetParent(m_edit), calendar);
        EXPECT_NE(m_edit, nullptr);
        return calendar;
    }
    HWND m_edit = nullptr;
};

TEST_F(MonthCalYear, ClosesTheCalendarByEscape) {
    const HWND calendar = OpenYear();
    ::SendMessage(m_edit, WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_FALSE(::IsWindow(calendar));
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(MonthCalYear, ClosesTheCalendarWhenTheFocusGoesOutside) {
    const std::vector<std::function<void()>> losses = {
        [&] { sibling.SetFocus(); }, [&] { ::SetFocus(grid.m_hWnd); }, [&] { parent.SetFocus(); },
        [&] { ::SetFocus(nullptr); }};
    for (const auto& lose : losses) {
        grid.CloseEditor();
        const HWND calendar = OpenYear();
        lose();
        EXPECT_FALSE(::IsWindow(calendar));
        EXPECT_TRUE(grid.reports.empty());
    }
}

TEST_F(MonthCalYear, LeavesTheCalendarOpenWhenTheFocusComesBackToIt) {
    const HWND calendar = OpenYear();
    ::SetFocus(calendar);
    EXPECT_TRUE(::IsWindow(calendar));
    EXPECT_EQ(::GetFocus(), calendar);
    ::SendMessage(calendar, WM_KEYDOWN, VK_RETURN, 1);
    EXPECT_EQ(grid.reports, std::vector{dateChosen});
}

TEST_F(MonthCalYear, IsEditedMoreThanOnce) {
    const HWND calendar = OpenYear();
    MonthCal::Press(calendar, Find(calendar, MCHT_TITLEBTNNEXT));
    ASSERT_TRUE(::IsWindow(calendar));
    ::UpdateWindow(calendar);
    MonthCal::Press(calendar, Find(calendar, MCHT_TITLEYEAR));
    const HWND edit = ::GetFocus();
    ASSERT_EQ(::GetParent(edit), calendar);
    ::SendMessage(edit, WM_KEYDOWN, VK_ESCAPE, 1);
    EXPECT_FALSE(::IsWindow(calendar));
}

TEST_F(MonthCalYear, LeavesOtherKeysToTheEdit) {
    const HWND calendar = OpenYear();
    EXPECT_EQ(::SendMessage(m_edit, WM_GETDLGCODE, 0, 0), DLGC_WANTALLKEYS);
    ::SendMessage(m_edit, WM_KEYDOWN, VK_LEFT, 1);
    EXPECT_TRUE(::IsWindow(calendar));
    EXPECT_TRUE(::IsWindow(m_edit));
}

TEST_F(MonthCal, ClosesWhenAChildOfAnotherWindowTakesTheFocus) {
    const HWND calendar = Open().m_hWnd;
    sibling.SetFocus();
    EXPECT_FALSE(::IsWindow(calendar));
}

// ---- Endings

struct Ending {
    const char* name;
    std::function<void(CEditorGrid&, HWND calendar)> end;
    bool chooses = false;
};

std::ostream& operator<<(std::ostream& out, const Ending& ending) {
    return out << ending.name;
}

void SendKey(HWND calendar, UINT key) {
    ::SendMessage(calendar, WM_KEYDOWN, key, 1);
}

const Ending endings[] = {
    {"Enter", [](auto&, HWND calendar) { SendKey(calendar, VK_RETURN); }, true},
    {"Execute", [](auto&, HWND calendar) { SendKey(calendar, VK_EXECUTE); }, true},
    {"Escape", [](auto&, HWND calendar) { SendKey(calendar, VK_ESCAPE); }},
    {"FocusToTheGrid", [](auto& grid, HWND) { ::SetFocus(grid.m_hWnd); }},
    {"FocusToTheParent", [](auto& grid, HWND) { ::SetFocus(::GetParent(grid.m_hWnd)); }},
    {"FocusNowhere", [](auto&, HWND) { ::SetFocus(nullptr); }},
    {"Closing", [](auto&, HWND calendar) { ::SendMessage(calendar, WM_CLOSE, 0, 0); }},
    {"DestroyingItsWindow", [](auto&, HWND calendar) { ::DestroyWindow(calendar); }},
};

class MonthCalEnding : public MonthCal, public testing::WithParamInterface<Ending> {
protected:
    void End(HWND calendar) { GetParam().end(grid, calendar); }
};

INSTANTIATE_TEST_SUITE_P(Endings, MonthCalEnding, testing::ValuesIn(endings),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_P(MonthCalEnding, ReportsADateOnceToAGridThatDeletesIt) {
    const HWND calendar = Open().m_hWnd;
    End(calendar);
    EXPECT_EQ(grid.reports, GetParam().chooses ? std::vector{dateChosen} : std::vector<Report>());
    EXPECT_FALSE(::IsWindow(calendar));
    EXPECT_EQ(grid.editor == nullptr, GetParam().chooses) << "without a date the object stays";
}

TEST_P(MonthCalEnding, LeavesTheClosingAfterADateToTheGrid) {
    grid.keepsEditor = true;
    const HWND calendar = Open().m_hWnd;
    End(calendar);
    EXPECT_EQ(grid.reports.size(), GetParam().chooses ? 1U : 0U);
    EXPECT_EQ(::IsWindow(calendar) != FALSE, GetParam().chooses);
    ASSERT_NE(grid.editor, nullptr);
    EXPECT_EQ(grid.editor->m_hWnd, GetParam().chooses ? calendar : nullptr);
}

void ExpectNothingLeftBehind(const std::function<void()>& cycle) {
    for (int i = 0; i < 3; ++i) {
        cycle();
    }
    const ProcessHoldings before = CountHoldings();
    for (int i = 0; i < 30; ++i) {
        cycle();
    }
    EXPECT_EQ(CountHoldings(), before);
}

TEST_P(MonthCalEnding, LeavesNothingBehind) {
    ExpectNothingLeftBehind([&] {
        End(Open().m_hWnd);
        grid.CloseEditor();
        grid.reports = {};
    });
}

TEST_F(MonthCal, LeavesNothingBehindByAClickOnADay) {
    ExpectNothingLeftBehind([&] {
        PressDay(Open().m_hWnd, 20);
        grid.reports = {};
    });
}

TEST_F(MonthCal, EndsSilentlyWithAClickBesideIt) {
    const HWND calendar = Open().m_hWnd;
    Click(parent.m_hWnd, {550, 380});
    EXPECT_TRUE(PumpUntil([&] { return !::IsWindow(calendar); }));
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(MonthCal, EndsSilentlyWhenAnotherTopLevelWindowTakesTheFocus) {
    const HWND calendar = Open().m_hWnd;
    CGridParent another;
    another.SetFocus();
    EXPECT_FALSE(::IsWindow(calendar));
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(MonthCal, EndsWithTheGrid) {
    const HWND calendar = Open().m_hWnd;
    grid.DestroyWindow();
    EXPECT_FALSE(::IsWindow(calendar));
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(MonthCal, EndsWithTheWholeDialog) {
    grid.keepsEditor = true;
    const HWND calendar = Open().m_hWnd;
    parent.DestroyWindow();
    EXPECT_FALSE(::IsWindow(calendar));
    EXPECT_TRUE(grid.reports.empty());
}

TEST_F(MonthCal, ReportsToItsParentWhenItHasNoOwner) {
    CEditorGrid top;
    top.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
    CPropertyGridMonthCalCtrl calendar;
    calendar.CreateEx(0, MONTHCAL_CLASS, nullptr, WS_POPUP | WS_BORDER, CRect(0, 0, 200, 200), &top, 0);
    SendKey(calendar.m_hWnd, VK_RETURN);
    EXPECT_EQ(top.reports, std::vector{dateChosen});
}

// ---- In a dialog

class MonthCalInADialog : public testing::Test {
protected:
    void Press(UINT key) {
        dialog.Run([=, this] {
            OpenCalendar(dialog.grid, COleDateTime(2024, 2, 14, 0, 0, 0), CRect(150, 20, 300, 36));
            ::PostMessage(::GetFocus(), WM_KEYDOWN, key, 1);
        });
    }
    CEditorDialog dialog;
};

TEST_F(MonthCalInADialog, EnterChoosesAlone) {
    Press(VK_RETURN);
    EXPECT_EQ(dialog.grid.reports, std::vector{dateChosen});
    EXPECT_EQ(dialog.oks, 0);
}

TEST_F(MonthCalInADialog, EscapeClosesTheCalendarAlone) {
    Press(VK_ESCAPE);
    EXPECT_TRUE(dialog.grid.reports.empty());
    EXPECT_FALSE(dialog.editorWasOpen);
    EXPECT_EQ(dialog.cancels, 0);
}

}  // namespace
