#include <afxdisp.h>
#include <gtest/gtest.h>

namespace {

TEST(OleDateTime, CountsDaysSinceThe30thOfDecember1899) {
    EXPECT_EQ(COleDateTime(1899, 12, 30, 0, 0, 0).m_dt, 0.0);
    EXPECT_EQ(COleDateTime(1900, 1, 1, 0, 0, 0).m_dt, 2.0);
    EXPECT_EQ(COleDateTime(2000, 1, 1, 12, 0, 0).m_dt, 36526.5);
    EXPECT_EQ(COleDateTime(1899, 12, 29, 6, 0, 0).m_dt, -1.25);
    EXPECT_EQ(COleDateTime(100, 1, 1, 0, 0, 0).m_dt, -657434.0);
    EXPECT_EQ(COleDateTime(9999, 12, 31, 0, 0, 0).m_dt, 2958465.0);
}

TEST(OleDateTime, GivesItsPartsBack) {
    for (const int year : {100, 1600, 1899, 1900, 2000, 2024, 9999}) {
        const COleDateTime date(year, 2, 28, 23, 59, 58);
        ASSERT_EQ(date.GetStatus(), COleDateTime::valid);
        EXPECT_EQ(date.GetYear(), year);
        EXPECT_EQ(date.GetMonth(), 2);
        EXPECT_EQ(date.GetDay(), 28);
        EXPECT_EQ(date.GetHour(), 23);
        EXPECT_EQ(date.GetMinute(), 59);
        EXPECT_EQ(date.GetSecond(), 58);
        EXPECT_EQ(date.GetDayOfYear(), 59);
    }
    EXPECT_EQ(COleDateTime(2024, 2, 29, 0, 0, 0).GetDayOfWeek(), 5);  // a Thursday
}

TEST(OleDateTime, RoundsToTheNearestSecond) {
    EXPECT_EQ(COleDateTime(1.0 - 1e-9).GetDay(), 31);
    EXPECT_EQ(COleDateTime(1.0 - 1e-9).GetHour(), 0);
}

TEST(OleDateTime, IsInvalidForPartsThatAreNoDate) {
    COleDateTime date(2024, 1, 2, 3, 4, 5);
    EXPECT_EQ(date.SetDateTime(2023, 2, 29, 0, 0, 0), 1);
    EXPECT_EQ(date.GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(date.GetYear(), -1);
    EXPECT_EQ(date.SetDateTime(2024, 2, 29, 0, 0, 0), 0);
    EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(date.SetDateTime(2024, 2, 29, 24, 0, 0), 1);
    EXPECT_EQ(date.SetDateTime(-1, -1, -1, -1, -1, -1), 1);
    EXPECT_EQ(date.SetDateTime(2024, 257, 1, 0, 0, 0), 1);
    EXPECT_EQ(date.SetDateTime(99, 1, 1, 0, 0, 0), 1);
    EXPECT_EQ(COleDateTime(3e6).GetStatus(), COleDateTime::invalid);
}

TEST(OleDateTime, ComparesInTheOrderOfTimeBefore1899Too) {
    EXPECT_LT(COleDateTime(1899, 12, 29, 6, 0, 0), COleDateTime(1899, 12, 29, 18, 0, 0));
    EXPECT_LT(COleDateTime(1899, 12, 29, 18, 0, 0), COleDateTime(1899, 12, 30, 0, 0, 0));
    EXPECT_EQ(COleDateTime(2024, 1, 1, 0, 0, 0), COleDateTime(2024, 1, 1, 0, 0, 0));
    COleDateTime invalid(2024, 1, 1, 0, 0, 0);
    invalid.SetStatus(COleDateTime::invalid);
    EXPECT_NE(invalid, COleDateTime(2024, 1, 1, 0, 0, 0));
}

TEST(OleDateTime, FormatsLikeStrftime) {
    const COleDateTime date(2024, 3, 9, 14, 5, 6);
    EXPECT_EQ(date.Format(L"%d.%m.%Y %H:%M:%S"), L"09.03.2024 14:05:06");
    EXPECT_EQ(date.Format(L"%j %y"), L"069 24");
    EXPECT_EQ(date.Format(L""), L"");
}

TEST(OleDateTime, FormatsByTheLocale) {
    const COleDateTime date(2024, 3, 9, 14, 5, 6);
    const LCID english = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
    EXPECT_EQ(date.Format(VAR_DATEVALUEONLY, english), L"3/9/2024");
    EXPECT_EQ(date.Format(VAR_TIMEVALUEONLY, english), L"2:05:06 PM");
    EXPECT_EQ(date.Format(0, english), L"3/9/2024 2:05:06 PM");
}

TEST(OleDateTime, FormatsWhatIsNoDateAsText) {
    COleDateTime date;
    date.SetStatus(COleDateTime::null);
    EXPECT_EQ(date.Format(), L"");
    EXPECT_EQ(date.Format(L"%Y"), L"");
    date.SetStatus(COleDateTime::invalid);
    EXPECT_EQ(date.Format(), L"Invalid DateTime");
    EXPECT_EQ(date.Format(L"%Y"), L"Invalid DateTime");
}

TEST(OleDateTime, BecomesASystemTime) {
    SYSTEMTIME time;
    ASSERT_TRUE(COleDateTime(2024, 2, 29, 1, 2, 3).GetAsSystemTime(time));
    EXPECT_EQ(time.wYear, 2024);
    EXPECT_EQ(time.wDayOfWeek, 4);
    EXPECT_EQ(COleDateTime(time), COleDateTime(2024, 2, 29, 1, 2, 3));
    COleDateTime invalid;
    invalid.SetStatus(COleDateTime::invalid);
    EXPECT_FALSE(invalid.GetAsSystemTime(time));
}

}  // namespace
