// COleDateTime.
#include <chrono>
#include <cmath>
#include <ctime>
#include <cwchar>

#include "afx/AfxTimeParts.h"
#include "afx/afxwin.h"
#include "afx/atlcomtime.h"

namespace {

using std::chrono::days;
using std::chrono::sys_days;

constexpr int secondsPerDay = 86400;
constexpr UINT invalidTextId = 0xD800;
constexpr sys_days epoch{std::chrono::year(1899) / 12 / 30};
constexpr DATE firstDate = (sys_days{std::chrono::year(100) / 1 / 1} - epoch).count();
constexpr DATE endDate = (sys_days{std::chrono::year(10000) / 1 / 1} - epoch).count();

// A date's day and the second of that day.
struct Moment {
    sys_days day;
    int second;

    explicit Moment(DATE date) {
        const double whole = std::trunc(date);
        day = epoch + days(static_cast<int>(whole));
        second = static_cast<int>(std::lround(std::fabs(date - whole) * secondsPerDay));
        if (second == secondsPerDay) {
            day += days(1);
            second = 0;
        }
    }

    std::tm AsParts() const {
        const std::chrono::year_month_day date(day);
        std::tm parts{};
        parts.tm_year = static_cast<int>(date.year()) - 1900;
        parts.tm_mon = static_cast<int>(static_cast<unsigned>(date.month())) - 1;
        parts.tm_mday = static_cast<int>(static_cast<unsigned>(date.day()));
        parts.tm_hour = second / 3600;
        parts.tm_min = second / 60 % 60;
        parts.tm_sec = second % 60;
        parts.tm_wday = static_cast<int>(std::chrono::weekday(day).c_encoding());
        parts.tm_yday = static_cast<int>((day - sys_days{date.year() / 1 / 1}).count());
        return parts;
    }
};

}  // namespace

COleDateTime::COleDateTime(const SYSTEMTIME& time) {
    SetDateTime(time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond);
}

bool COleDateTime::IsInRange(DATE date) {
    return date > firstDate - 1 && date < endDate;
}

int COleDateTime::SetDateTime(int year, int month, int day, int hour, int minute, int second) {
    const std::chrono::year_month_day date(std::chrono::year(year),
                                           std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day)));
    const bool isDate = year >= 100 && year <= 9999 && month <= 12 && day <= 31 && date.ok();
    const bool isTime = hour >= 0 && hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 60;
    m_status = isDate && isTime ? valid : invalid;
    if (m_status == valid) {
        const auto number = static_cast<double>((sys_days(date) - epoch).count());
        const double fraction = static_cast<double>(hour * 3600 + minute * 60 + second) / secondsPerDay;
        m_dt = number < 0 ? number - fraction : number + fraction;
    }
    return m_status;
}

int COleDateTime::GetYear() const {
    return m_status == valid ? Moment(m_dt).AsParts().tm_year + 1900 : error;
}

int COleDateTime::GetMonth() const {
    return m_status == valid ? Moment(m_dt).AsParts().tm_mon + 1 : error;
}

int COleDateTime::GetDay() const {
    return m_status == valid ? Moment(m_dt).AsParts().tm_mday : error;
}

int COleDateTime::GetHour() const {
    return m_status == valid ? Moment(m_dt).AsParts().tm_hour : error;
}

int COleDateTime::GetMinute() const {
    return m_status == valid ? Moment(m_dt).AsParts().tm_min : error;
}

int COleDateTime::GetSecond() const {
    return m_status == valid ? Moment(m_dt).AsParts().tm_sec : error;
}

int COleDateTime::GetDayOfWeek() const {
    return m_status == valid ? Moment(m_dt).AsParts().tm_wday + 1 : error;
}

int COleDateTime::GetDayOfYear() const {
    return m_status == valid ? Moment(m_dt).AsParts().tm_yday + 1 : error;
}

bool COleDateTime::GetAsSystemTime(SYSTEMTIME& time) const {
    if (m_status != valid) {
        return false;
    }
    time = AfxSystemTimeOf(Moment(m_dt).AsParts());
    return true;
}

double COleDateTime::Ordinal() const {
    const double whole = std::trunc(m_dt);
    return whole + std::fabs(m_dt - whole);
}

CString COleDateTime::FormatUnlessValid() const {
    CString text;
    if (m_status != null && !text.LoadString(invalidTextId)) {
        text = L"Invalid DateTime";
    }
    return text;
}

CString COleDateTime::Format(DWORD flags, LCID locale) const {
    BSTR written = nullptr;
    if (m_status != valid || FAILED(::VarBstrFromDate(m_dt, locale, flags, &written))) {
        return FormatUnlessValid();
    }
    CString text(written, static_cast<int>(::SysStringLen(written)));
    ::SysFreeString(written);
    return text;
}

CString COleDateTime::Format(LPCTSTR format) const {
    if (m_status != valid) {
        return FormatUnlessValid();
    }
    const std::tm parts = Moment(m_dt).AsParts();
    wchar_t text[1024];
    const size_t length = std::wcsftime(text, 1024, format, &parts);
    return CString(text, static_cast<int>(length));
}
