// The window classes that a dialog assembled at run time knows, by type code, and what each exchanges with
// the variable of the code that adds the control.
#pragma once

#include <cstdint>
#include <string_view>

namespace tavrin::dyndlg {

// The first six are also the ordinals by which Windows knows the classes in a dialog template.
enum EControlType : std::uint32_t {
    CT_ACTIVEX = 0,  // no known class: the name is an ActiveX control's ProgID
    CT_BUTTON = 128,
    CT_EDIT,
    CT_STATIC,
    CT_LISTBOX,
    CT_SCROLLBAR,
    CT_COMBOBOX,
    CT_UPDOWN,
    CT_PROGRESS,
    CT_TRACKBAR,
    CT_HOTKEY,
    CT_LISTVIEW,
    CT_TREEVIEW,
    CT_TAB,
    CT_ANIMATE,
    CT_RICHEDIT,
    CT_DATETIMEPICK,
    CT_MONTHCAL,
    CT_IPADDRESS,
    CT_COMBOBOXEX
};

// The code of a window class. The first characters decide, in the order of the codes and case-sensitively:
// L"EDITX" is an edit control, L"Button" is not a button but CT_ACTIVEX, as every unknown name is.
std::uint32_t TypeCodeOfClass(std::wstring_view className);

// The window class of a code; the empty text for a code that is none of the 19.
const wchar_t* ClassOfTypeCode(std::uint32_t typeCode);

// How a control and the caller's variable exchange their values, and so what the variable must be.
enum EExchange {
    EX_NONE,           // nothing: the code is none of the 19
    EX_RADIO,          // int: which button of its group is on, from 0; -1 for none
    EX_CHECK,          // int: 0, 1 or 2
    EX_TEXT,           // CString
    EX_SCROLL,         // int: position of a scroll bar
    EX_SLIDER,         // int: position of a trackbar
    EX_TIME,           // CTime
    EX_DATE,           // COleDateTime in a date picker
    EX_CALENDAR_DATE,  // COleDateTime in a month calendar
    EX_CONTROL         // CWnd, or a class derived from it: the object of the control itself
};

// The style's low bits distinguish buttons and pickers. They are tested as patterns, so that styles which
// merely contain a pattern count too: an owner-drawn button (0xB) is a radio button, a group box (7) a check
// box.
EExchange ExchangeOf(std::uint32_t typeCode, std::uint32_t style);

}  // namespace tavrin::dyndlg
