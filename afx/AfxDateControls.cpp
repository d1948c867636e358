// The month calendar and the date picker.
#include "afx/afxdtctl.h"

IMPLEMENT_DYNAMIC(CMonthCalCtrl, CWnd)
IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)

namespace {

// Windows registers these classes on demand.
void RegisterDateClasses() {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_DATE_CLASSES};
    ::InitCommonControlsEx(&classes);
}

// A control as an object of the class that has its operations, without taking it over.
template <class TControl>
class CBorrowed : public TControl {
public:
    explicit CBorrowed(HWND window) { this->m_hWnd = window; }
    ~CBorrowed() override { this->m_hWnd = nullptr; }
};

}  // namespace

BOOL CMonthCalCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    RegisterDateClasses();
    return CWnd::Create(MONTHCAL_CLASS, nullptr, style, rect, parent, id);
}

BOOL CMonthCalCtrl::SetCurSel(const LPSYSTEMTIME time) {
    return static_cast<BOOL>(SendMessage(MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(time)));
}

BOOL CMonthCalCtrl::SetCurSel(const COleDateTime& time) {
    SYSTEMTIME parts;
    return time.GetAsSystemTime(parts) && SetCurSel(&parts);
}

BOOL CMonthCalCtrl::GetCurSel(LPSYSTEMTIME time) const {
    return static_cast<BOOL>(::SendMessage(m_hWnd, MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(time)));
}

BOOL CMonthCalCtrl::GetCurSel(COleDateTime& time) const {
    SYSTEMTIME parts = {};
    if (!GetCurSel(&parts)) {
        return FALSE;
    }
    time = COleDateTime(parts);
    return TRUE;
}

BOOL CMonthCalCtrl::GetMinReqRect(RECT* rect) const {
    return static_cast<BOOL>(::SendMessage(m_hWnd, MCM_GETMINREQRECT, 0, reinterpret_cast<LPARAM>(rect)));
}

BOOL CMonthCalCtrl::SizeMinReq(BOOL repaint) {
    CRect smallest;
    if (!GetMinReqRect(smallest)) {
        return FALSE;
    }
    const UINT flags = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | (repaint ? 0 : SWP_NOREDRAW);
    return SetWindowPos(nullptr, 0, 0, smallest.right, smallest.bottom, flags);
}

BOOL CDateTimeCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    RegisterDateClasses();
    return CWnd::Create(DATETIMEPICK_CLASS, nullptr, style, rect, parent, id);
}

DWORD CDateTimeCtrl::GetTime(LPSYSTEMTIME time) const {
    return static_cast<DWORD>(::SendMessage(m_hWnd, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(time)));
}

DWORD CDateTimeCtrl::GetTime(CTime& time) const {
    SYSTEMTIME parts = {};
    const DWORD result = GetTime(&parts);
    if (result == GDT_VALID) {
        time = CTime(parts);
    }
    return result;
}

BOOL CDateTimeCtrl::GetTime(COleDateTime& time) const {
    SYSTEMTIME parts = {};
    const DWORD result = GetTime(&parts);
    if (result == GDT_VALID) {
        time = COleDateTime(parts);
    } else {
        time.SetStatus(result == GDT_NONE ? COleDateTime::null : COleDateTime::invalid);
    }
    return result == GDT_VALID;
}

BOOL CDateTimeCtrl::SetTime(LPSYSTEMTIME time) {
    // Wine refuses a null pointer even where the value is not looked at.
    const SYSTEMTIME none = {};
    return static_cast<BOOL>(SendMessage(DTM_SETSYSTEMTIME, time != nullptr ? GDT_VALID : GDT_NONE,
                                         reinterpret_cast<LPARAM>(time != nullptr ? time : &none)));
}

BOOL CDateTimeCtrl::SetTime(const CTime* time) {
    SYSTEMTIME parts;
    return SetTime(time != nullptr && time->GetAsSystemTime(parts) ? &parts : nullptr);
}

BOOL CDateTimeCtrl::SetTime(const COleDateTime& time) {
    SYSTEMTIME parts;
    return SetTime(time.GetAsSystemTime(parts) ? &parts : nullptr);
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange* exchange, int id, CTime& value) {
    CBorrowed<CDateTimeCtrl> control(exchange->PrepareCtrl(id));
    if (exchange->m_bSaveAndValidate) {
        control.GetTime(value);
    } else {
        control.SetTime(&value);
    }
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange* exchange, int id, COleDateTime& value) {
    CBorrowed<CDateTimeCtrl> control(exchange->PrepareCtrl(id));
    if (exchange->m_bSaveAndValidate) {
        control.GetTime(value);
    } else {
        control.SetTime(value);
    }
}

void AFXAPI DDX_MonthCalCtrl(CDataExchange* exchange, int id, COleDateTime& value) {
    CBorrowed<CMonthCalCtrl> control(exchange->PrepareCtrl(id));
    if (exchange->m_bSaveAndValidate) {
        control.GetCurSel(value);
    } else {
        control.SetCurSel(value);
    }
}
