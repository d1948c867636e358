// COleDateTime: a date and time as OLE automation counts it.
#pragma once

#include "afx/afx.h"

// Days since 30 December 1899, midnight, the time of day as the fraction. Before that day the whole part
// counts backwards while the fraction still counts forward: -1.25 is 29 December 1899, six o'clock.
// From 1 January 100 to 31 December 9999, to the second, in no particular time zone.
class COleDateTime {
public:
    enum DateTimeStatus { error = -1, valid = 0, invalid = 1, null = 2 };

    COleDateTime() = default;
    COleDateTime(DATE date) : m_dt(date), m_status(IsInRange(date) ? valid : invalid) {}
    COleDateTime(int year, int month, int day, int hour, int minute, int second) {
        SetDateTime(year, month, day, hour, minute, second);
    }
    COleDateTime(const SYSTEMTIME& time);

    DateTimeStatus GetStatus() const { return m_status; }
    void SetStatus(DateTimeStatus status) { m_status = status; }
    operator DATE() const { return m_dt; }

    // 0 when the parts are a date and time; otherwise 1, and the object becomes invalid.
    int SetDateTime(int year, int month, int day, int hour, int minute, int second);
    int SetTime(int hour, int minute, int second) { return SetDateTime(1899, 12, 30, hour, minute, second); }

    // Each is -1 (error) when the object is not valid.
    int GetYear() const;
    int GetMonth() const;      // 1 to 12
    int GetDay() const;        // 1 to 31
    int GetHour() const;       // 0 to 23
    int GetMinute() const;     // 0 to 59
    int GetSecond() const;     // 0 to 59
    int GetDayOfWeek() const;  // 1 (Sunday) to 7
    int GetDayOfYear() const;  // 1 to 366
    bool GetAsSystemTime(SYSTEMTIME& time) const;

    // A null date gives an empty text, an invalid one string resource 0xD800 or "Invalid DateTime".
    // By the locale: LOCALE_NOUSEROVERRIDE, VAR_DATEVALUEONLY, VAR_TIMEVALUEONLY.
    CString Format(DWORD flags = 0, LCID locale = LANG_USER_DEFAULT) const;
    // As strftime, by the C runtime's locale; empty when the result passes 1023 characters.
    CString Format(LPCTSTR format) const;

    // Valid dates and times; two null ones are equal.
    bool operator==(const COleDateTime& other) const {
        return m_status == other.m_status && m_dt == other.m_dt;
    }
    bool operator!=(const COleDateTime& other) const { return !(*this == other); }
    bool operator<(const COleDateTime& other) const { return Ordinal() < other.Ordinal(); }
    bool operator>(const COleDateTime& other) const { return Ordinal() > other.Ordinal(); }
    bool operator<=(const COleDateTime& other) const { return Ordinal() <= other.Ordinal(); }
    bool operator>=(const COleDateTime& other) const { return Ordinal() >= other.Ordinal(); }

    DATE m_dt = 0;
    DateTimeStatus m_status = valid;

private:
    static bool IsInRange(DATE date);
    CString FormatUnlessValid() const;
    double Ordinal() const;  // days that also count forward before 30 December 1899
};
