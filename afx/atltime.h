// CTime: a point in time, shown in local time.
#pragma once

#include <ctime>

#include "afx/afx.h"

// Seconds since 1 January 1970, universal time. The parts of a time that cannot be shown in local time are -1
// each.
class CTime {
public:
    CTime() = default;
    CTime(__time64_t time) : m_time(time) {}
    // In local time; isDaylightSaving is 1, 0, or -1 for what the system says holds at that time. Parts that
    // make no time from 1970 to 3000 are an error, which is thrown as a CException*.
    CTime(int year, int month, int day, int hour, int minute, int second, int isDaylightSaving = -1);
    CTime(const SYSTEMTIME& time, int isDaylightSaving = -1);

    __time64_t GetTime() const { return m_time; }
    int GetYear() const;
    int GetMonth() const;   // 1 to 12
    int GetDay() const;     // 1 to 31
    int GetHour() const;    // 0 to 23
    int GetMinute() const;  // 0 to 59
    int GetSecond() const;  // 0 to 59
    bool GetAsSystemTime(SYSTEMTIME& time) const;

    bool operator==(CTime other) const { return m_time == other.m_time; }
    bool operator!=(CTime other) const { return m_time != other.m_time; }
    bool operator<(CTime other) const { return m_time < other.m_time; }

private:
    __time64_t m_time = 0;
};
