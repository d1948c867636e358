// Between the types of the grid's core and those of the framework.
#pragma once

#include <afxwin.h>
#include <atlcomtime.h>

#include <bit>
#include <memory>

#include "propgrid/layout/Geometry.h"
#include "propgrid/model/Value.h"

namespace tavrin::propgrid {

inline CRect ToCRect(const Rect& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

inline CPoint ToCPoint(Point point) {
    return {point.x, point.y};
}

inline Point ToPoint(CPoint point) {
    return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

inline COleDateTime ToOleDate(const DateValue& value) {
    COleDateTime date;
    date.m_dt = value.days;
    date.SetStatus(static_cast<COleDateTime::DateTimeStatus>(value.status));
    return date;
}

inline DateValue ToDateValue(const COleDateTime& date) {
    return {date.m_dt, static_cast<EDateStatus>(date.GetStatus())};
}

inline LOGFONTW ToLogFont(const FontValue& font) {
    return std::bit_cast<LOGFONTW>(font);
}

inline FontPointer ToFontPointer(const LOGFONTW& font) {
    return std::make_shared<const FontValue>(std::bit_cast<FontValue>(font));
}

}  // namespace tavrin::propgrid
