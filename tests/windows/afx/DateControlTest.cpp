// The month calendar, the date picker, and the times they show.
#include <afxdtctl.h>
#include <gtest/gtest.h>

namespace {

class DateControl : public testing::Test {
protected:
    void SetUp() override {
        m_parent.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 400, 300, nullptr, nullptr);
    }
    CWnd m_parent;
    const COleDateTime m_date{2024, 2, 29, 13, 14, 15};
};

TEST_F(DateControl, CalendarShowsAndGivesADay) {
    CMonthCalCtrl calendar;
    ASSERT_TRUE(calendar.Create(0, CRect(0, 0, 300, 250), &m_parent, 1));
    EXPECT_TRUE(calendar.SetCurSel(m_date));
    COleDateTime read;
    ASSERT_TRUE(calendar.GetCurSel(read));
    EXPECT_EQ(read.GetYear(), 2024);
    EXPECT_EQ(read.GetMonth(), 2);
    EXPECT_EQ(read.GetDay(), 29);
    COleDateTime invalid;
    invalid.SetStatus(COleDateTime::invalid);
    EXPECT_FALSE(calendar.SetCurSel(invalid));
}

TEST_F(DateControl, CalendarTakesItsSmallestSizeWhereItIs) {
    CMonthCalCtrl calendar;
    calendar.Create(0, CRect(20, 30, 21, 31), &m_parent, 1);
    CRect smallest, rect;
    ASSERT_TRUE(calendar.GetMinReqRect(smallest));
    EXPECT_GT(smallest.Width(), 50);
    EXPECT_TRUE(calendar.SizeMinReq());
    calendar.GetWindowRect(rect);
    m_parent.ScreenToClient(rect);
    EXPECT_TRUE(rect.TopLeft() == CPoint(20, 30));
    EXPECT_TRUE(rect.Size() == smallest.Size());
}

TEST_F(DateControl, PickerShowsAndGivesADateAndATime) {
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.Create(0, CRect(0, 0, 100, 20), &m_parent, 1));
    EXPECT_TRUE(picker.SetTime(m_date));
    COleDateTime read;
    ASSERT_TRUE(picker.GetTime(read));
    EXPECT_EQ(read, m_date);
    const CTime time(2023, 1, 2, 3, 4, 5);
    EXPECT_TRUE(picker.SetTime(&time));
    CTime readTime;
    EXPECT_EQ(picker.GetTime(readTime), static_cast<DWORD>(GDT_VALID));
    EXPECT_EQ(readTime, time);
}

TEST_F(DateControl, PickerThatHoldsNoneGivesANullDate) {
    CDateTimeCtrl picker;
    picker.Create(DTS_SHOWNONE, CRect(0, 0, 100, 20), &m_parent, 1);
    COleDateTime invalid, read = m_date;
    invalid.SetStatus(COleDateTime::invalid);
    EXPECT_TRUE(picker.SetTime(invalid));
    EXPECT_FALSE(picker.GetTime(read));
    EXPECT_EQ(read.GetStatus(), COleDateTime::null);
}

class CDateWnd : public CWnd {
public:
    CTime m_time{2024, 2, 29, 13, 14, 15};
    COleDateTime m_date{2024, 2, 29, 0, 0, 0}, m_day{2024, 3, 1, 0, 0, 0};

    void DoDataExchange(CDataExchange* exchange) override {
        DDX_DateTimeCtrl(exchange, 1, m_time);
        DDX_DateTimeCtrl(exchange, 2, m_date);
        DDX_MonthCalCtrl(exchange, 3, m_day);
    }
};

TEST_F(DateControl, ExchangesItsValueWithAMember) {
    CDateWnd window;
    window.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 400, 300, nullptr, nullptr);
    CDateTimeCtrl time, date;
    CMonthCalCtrl day;
    time.Create(DTS_TIMEFORMAT, CRect(0, 0, 100, 20), &window, 1);
    date.Create(0, CRect(0, 30, 100, 50), &window, 2);
    day.Create(0, CRect(0, 60, 250, 260), &window, 3);
    ASSERT_TRUE(window.UpdateData(FALSE));
    COleDateTime read;
    time.GetTime(read);
    EXPECT_EQ(read.GetHour(), 13);
    day.GetCurSel(read);
    EXPECT_EQ(read.GetDay(), 1);
    time.SetTime(COleDateTime(2024, 2, 29, 1, 2, 3));
    date.SetTime(COleDateTime(2025, 12, 31, 0, 0, 0));
    day.SetCurSel(COleDateTime(2026, 7, 8, 0, 0, 0));
    ASSERT_TRUE(window.UpdateData(TRUE));
    EXPECT_EQ(window.m_time.GetHour(), 1);
    EXPECT_EQ(window.m_time.GetMinute(), 2);
    EXPECT_EQ(window.m_date.GetYear(), 2025);
    EXPECT_EQ(window.m_day.GetMonth(), 7);
    EXPECT_EQ(window.m_day.GetDay(), 8);
}

TEST(Time, GivesItsPartsBack) {
    const CTime time(2024, 7, 31, 23, 58, 59);
    EXPECT_EQ(time.GetYear(), 2024);
    EXPECT_EQ(time.GetMonth(), 7);
    EXPECT_EQ(time.GetDay(), 31);
    EXPECT_EQ(time.GetHour(), 23);
    EXPECT_EQ(time.GetMinute(), 58);
    EXPECT_EQ(time.GetSecond(), 59);
    SYSTEMTIME parts;
    ASSERT_TRUE(time.GetAsSystemTime(parts));
    EXPECT_EQ(CTime(parts), time);
    EXPECT_LT(time, CTime(2024, 8, 1, 0, 0, 0));
}

TEST(Time, HasNoPartsWhenItCannotBeShown) {
    const CTime time(-1);
    EXPECT_EQ(time.GetHour(), -1);
    EXPECT_EQ(time.GetMinute(), -1);
    EXPECT_EQ(time.GetYear(), -1);
    SYSTEMTIME parts;
    EXPECT_FALSE(time.GetAsSystemTime(parts));
}

TEST(Time, CannotBeMadeFromPartsBefore1970) {
    EXPECT_THROW(CTime(1960, 5, 6, 7, 8, 9), CException*);
    const SYSTEMTIME parts = {1899, 12, 6, 30, 1, 2, 3, 0};
    EXPECT_THROW(CTime{parts}, CException*);
}

}  // namespace
