#include "dyndlg/ControlTypes.h"

#include <cstddef>
#include <iterator>

namespace tavrin::dyndlg {

namespace {

struct ControlClass {
    std::wstring_view name;   // ends in a zero: a literal
    std::size_t significant;  // characters that decide whether a name means this class
};

constexpr ControlClass kClasses[] = {
    {L"BUTTON", 3},
    {L"EDIT", 2},
    {L"STATIC", 3},
    {L"LISTBOX", 4},
    {L"SCROLLBAR", 5},
    {L"COMBOBOX", 4},
    {L"msctls_updown32", 8},
    {L"msctls_progress32", 9},
    {L"msctls_trackbar32", 9},
    {L"msctls_hotkey32", 8},
    {L"SysListView32", 7},
    {L"SysTreeView32", 7},
    {L"SysTabControl32", 8},
    {L"SysAnimate32", 6},
    {L"RICHEDIT", 4},
    {L"SysDateTimePick32", 9},
    {L"SysMonthCal32", 7},
    {L"SysIPAddress32", 7},
    {L"ComboBoxEx32", 6},
};
constexpr std::uint32_t kFirstCode = CT_BUTTON;
constexpr std::uint32_t kCodeCount = std::size(kClasses);
static_assert(kFirstCode + kCodeCount - 1 == CT_COMBOBOXEX);

bool HasBits(std::uint32_t style, std::uint32_t bits) {
    return (style & bits) == bits;
}

EExchange ExchangeOfButton(std::uint32_t style) {
    constexpr std::uint32_t autoRadioButton = 9;
    constexpr std::uint32_t autoCheckBox = 3;
    // The order matters: 0xB has both patterns and is a radio button.
    if (HasBits(style, autoRadioButton)) {
        return EX_RADIO;
    }
    return HasBits(style, autoCheckBox) ? EX_CHECK : EX_CONTROL;
}

}  // namespace

std::uint32_t TypeCodeOfClass(std::wstring_view className) {
    std::uint32_t code = kFirstCode;
    for (const ControlClass& known : kClasses) {
        if (className.starts_with(known.name.substr(0, known.significant))) {
            return code;
        }
        ++code;
    }
    return CT_ACTIVEX;
}

const wchar_t* ClassOfTypeCode(std::uint32_t typeCode) {
    // Unsigned: codes below the first wrap around to beyond the last.
    const std::uint32_t index = typeCode - kFirstCode;
    return index < kCodeCount ? kClasses[index].name.data() : L"";
}

EExchange ExchangeOf(std::uint32_t typeCode, std::uint32_t style) {
    constexpr std::uint32_t timeFormat = 9;  // DTS_TIMEFORMAT
    if (typeCode - kFirstCode >= kCodeCount) {
        return EX_NONE;
    }
    switch (typeCode) {
        case CT_BUTTON:
            return ExchangeOfButton(style);
        case CT_EDIT:
        case CT_STATIC:
            return EX_TEXT;
        case CT_SCROLLBAR:
            return EX_SCROLL;
        case CT_TRACKBAR:
            return EX_SLIDER;
        case CT_DATETIMEPICK:
            return HasBits(style, timeFormat) ? EX_TIME : EX_DATE;
        case CT_MONTHCAL:
            return EX_CALENDAR_DATE;
        default:
            return EX_CONTROL;
    }
}

}  // namespace tavrin::dyndlg
