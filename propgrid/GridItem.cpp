#include "propgrid/GridItem.h"

#include <cstring>
#include <cwchar>
#include <type_traits>

#include "propgrid/ICustomItem.h"

namespace {

bool SameValue(const COleDateTime& a, const COleDateTime& b) {
    return a.m_dt == b.m_dt && a.m_status == b.m_status;
}

bool SameValue(const CGridFont& a, const CGridFont& b) {
    return a == b || (a && b && std::memcmp(a.get(), b.get(), sizeof(LOGFONTW)) == 0);
}

template <class T>
bool SameValue(const T& a, const T& b) {
    return a == b;
}

// A text of one line: each line break shows as a pilcrow.
std::wstring OneLine(const std::wstring& text) {
    std::wstring line;
    line.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == L'\r' && i + 1 < text.size() && text[i + 1] == L'\n') {
            line += L'\u00B6';
            ++i;
        } else {
            line += text[i];
        }
    }
    return line;
}

std::wstring Formatted(const std::wstring& format, auto number) {
    CString text;
    text.Format(format.c_str(), number);
    return std::wstring(text.GetString(), static_cast<std::size_t>(text.GetLength()));
}

// A date that is not valid gives the framework's text for it, a null one none.
std::wstring DateText(const COleDateTime& date, const std::wstring& format, DWORD localeFlags) {
    return (format.empty() ? date.Format(localeFlags, LANG_USER_DEFAULT) : date.Format(format.c_str()))
        .GetString();
}

std::wstring ColorText(COLORREF color) {
    return std::to_wstring(GetRValue(color)) + L"; " + std::to_wstring(GetGValue(color)) + L"; " +
           std::to_wstring(GetBValue(color));
}

std::wstring FontText(const LOGFONTW& font, int pixelsPerInch) {
    // A face name that fills its field has no terminating zero.
    const std::wstring face(font.lfFaceName, wcsnlen(font.lfFaceName, LF_FACESIZE));
    return face + L"; " + std::to_wstring(-MulDiv(font.lfHeight, 72, pixelsPerInch)) + L"pt";
}

template <class T>
const T& As(const void* source) {
    return *static_cast<const T*>(source);
}

}  // namespace

bool ReadGridValue(EItemType kind, const void* source, CGridValue& value) {
    if (source == nullptr) {
        return false;
    }
    switch (kind) {
        case IT_CUSTOM:
            value = static_cast<ICustomItem*>(const_cast<void*>(source));
            return true;
        case IT_STRING:
        case IT_TEXT:
        case IT_FILE:
        case IT_FOLDER:
            value = As<std::wstring>(source);
            return true;
        case IT_INTEGER:
        case IT_COMBO:
            value = As<int>(source);
            return true;
        case IT_DOUBLE:
            value = As<double>(source);
            return true;
        case IT_BOOLEAN:
            value = As<bool>(source);
            return true;
        case IT_DATE:
        case IT_DATETIME:
            value = As<COleDateTime>(source);
            return true;
        case IT_COLOR:
            value = As<COLORREF>(source);
            return true;
        case IT_FONT:
            value = std::make_shared<const LOGFONTW>(As<LOGFONTW>(source));
            return true;
    }
    return false;
}

CRect CGridPlace::GetRow(unsigned row) const {
    const int y = top + static_cast<int>(row) * rowHeight;
    return CRect(0, y, area.cx, y + rowHeight);
}

bool CGridPlace::Shows(const CRect& row) const {
    return area.cx > 0 && row.top < area.cy && row.bottom > 0 && row.top < row.bottom;
}

CRect CGridItem::GetPaintedRow() const {
    const CGridPlace& place = section->place;
    const unsigned number = place.sorted ? sortedRow : row;
    return number < place.rows ? place.GetRow(number) : CRect();
}

CRect CGridItem::GetNameRect() const {
    CRect rect = GetPaintedRow();
    if (section->place.Shows(rect)) {
        rect.right = section->place.gutter;
    }
    return rect;
}

CRect CGridItem::GetValueRect() const {
    const CGridPlace& place = section->place;
    CRect rect = GetPaintedRow();
    if (!place.Shows(rect)) {
        return CRect();
    }
    rect.left = place.gutter;
    if (place.buttonItem == id) {
        rect.right -= place.rowHeight;
    }
    return rect;
}

void CGridItem::TakeSavedCopy() {
    savedUndefined = undefined;
    saved = value;
    if (kind == IT_CUSTOM) {
        std::get<ICustomItem*>(value)->AcceptValue();
    }
}

bool CGridItem::IsModified() const {
    if (kind == IT_CUSTOM) {
        return false;
    }
    return std::visit(
        [this](const auto& current) {
            return !SameValue(current, std::get<std::decay_t<decltype(current)>>(saved));
        },
        value);
}

int CGridItem::GetEditMode() const {
    switch (kind) {
        case IT_CUSTOM:
            return std::get<ICustomItem*>(value)->GetEditMode();
        case IT_STRING:
        case IT_INTEGER:
        case IT_DOUBLE:
            return EM_INPLACE;
        case IT_COMBO:
        case IT_BOOLEAN:
        case IT_DATE:
            return EM_DROPDOWN;
        default:
            return EM_MODAL;
    }
}

std::wstring CGridItem::GetText(const CGridTexts& texts, int pixelsPerInch) const {
    if (undefined) {
        return texts.undefined;
    }
    static const std::wstring noFormat;
    const std::wstring& format = options.empty() ? noFormat : options.front();
    switch (kind) {
        case IT_CUSTOM:
            return {};
        case IT_STRING:
        case IT_FILE:
        case IT_FOLDER:
            return std::get<std::wstring>(value);
        case IT_TEXT:
            return OneLine(std::get<std::wstring>(value));
        case IT_INTEGER:
            return Formatted(format.empty() ? L"%d" : format, std::get<int>(value));
        case IT_DOUBLE:
            return Formatted(format.empty() ? L"%g" : format, std::get<double>(value));
        case IT_COMBO: {
            // An index without a choice, negative ones too, is a legal value that shows nothing.
            const auto index = static_cast<std::size_t>(std::get<int>(value));
            return index < options.size() ? options[index] : std::wstring();
        }
        case IT_BOOLEAN:
            return std::get<bool>(value) ? texts.trueText : texts.falseText;
        case IT_DATE:
            return DateText(std::get<COleDateTime>(value), format, VAR_DATEVALUEONLY);
        case IT_DATETIME:
            return DateText(std::get<COleDateTime>(value), format, 0);
        case IT_COLOR:
            return ColorText(std::get<COLORREF>(value));
        case IT_FONT:
            return FontText(*std::get<CGridFont>(value), pixelsPerInch);
    }
    return {};
}
