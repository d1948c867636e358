// CTime.
#include "afx/AfxTimeParts.h"
#include "afx/atltime.h"

namespace {

// One part of a time in local time, or what stands for none.
int GetLocalPart(__time64_t time, int std::tm::*part, int offset = 0) {
    std::tm local{};
    return ::_localtime64_s(&local, &time) == 0 ? local.*part + offset : -1;
}

}  // namespace

CTime::CTime(int year, int month, int day, int hour, int minute, int second, int isDaylightSaving) {
    std::tm parts{};
    parts.tm_year = year - 1900;
    parts.tm_mon = month - 1;
    parts.tm_mday = day;
    parts.tm_hour = hour;
    parts.tm_min = minute;
    parts.tm_sec = second;
    parts.tm_isdst = isDaylightSaving;
    m_time = ::_mktime64(&parts);
    if (m_time == -1) {
        AfxThrowInvalidArgException();
    }
}

CTime::CTime(const SYSTEMTIME& time, int isDaylightSaving)
    : CTime(time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond, isDaylightSaving) {}

int CTime::GetYear() const {
    return GetLocalPart(m_time, &std::tm::tm_year, 1900);
}

int CTime::GetMonth() const {
    return GetLocalPart(m_time, &std::tm::tm_mon, 1);
}

int CTime::GetDay() const {
    return GetLocalPart(m_time, &std::tm::tm_mday);
}

int CTime::GetHour() const {
    return GetLocalPart(m_time, &std::tm::tm_hour);
}

int CTime::GetMinute() const {
    return GetLocalPart(m_time, &std::tm::tm_min);
}

int CTime::GetSecond() const {
    return GetLocalPart(m_time, &std::tm::tm_sec);
}

bool CTime::GetAsSystemTime(SYSTEMTIME& time) const {
    std::tm local{};
    if (::_localtime64_s(&local, &m_time) != 0) {
        return false;
    }
    time = AfxSystemTimeOf(local);
    return true;
}
