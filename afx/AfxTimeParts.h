// Converts a date and time from the C runtime's std::tm to SYSTEMTIME.
#pragma once

#include <ctime>

#include "afx/AfxBase.h"

inline SYSTEMTIME AfxSystemTimeOf(const std::tm& parts) {
    SYSTEMTIME time = {};
    time.wYear = static_cast<WORD>(parts.tm_year + 1900);
    time.wMonth = static_cast<WORD>(parts.tm_mon + 1);
    time.wDayOfWeek = static_cast<WORD>(parts.tm_wday);
    time.wDay = static_cast<WORD>(parts.tm_mday);
    time.wHour = static_cast<WORD>(parts.tm_hour);
    time.wMinute = static_cast<WORD>(parts.tm_min);
    time.wSecond = static_cast<WORD>(parts.tm_sec);
    return time;
}
