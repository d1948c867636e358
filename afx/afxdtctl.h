// The framework's month calendar and date picker.
#pragma once

#include "afx/afxcmn.h"
#include "afx/atlcomtime.h"
#include "afx/atltime.h"

// One month, of which one day is selected. Each operation gives FALSE when the control refuses.
class CMonthCalCtrl : public CWnd {
    DECLARE_DYNAMIC(CMonthCalCtrl)
    CMonthCalCtrl() = default;
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    BOOL SetCurSel(const LPSYSTEMTIME time);
    BOOL SetCurSel(const COleDateTime& time);
    BOOL GetCurSel(LPSYSTEMTIME time) const;
    BOOL GetCurSel(COleDateTime& time) const;
    // The smallest rectangle that shows a whole month; its left and top are 0.
    BOOL GetMinReqRect(RECT* rect) const;
    // Takes that size, where the control is.
    BOOL SizeMinReq(BOOL repaint = TRUE);
};

// A date or a time of day, picked or typed.
class CDateTimeCtrl : public CWnd {
    DECLARE_DYNAMIC(CDateTimeCtrl)
    CDateTimeCtrl() = default;
    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    // FALSE when the control holds no time (DTS_SHOWNONE); the date is null then.
    BOOL GetTime(COleDateTime& time) const;
    DWORD GetTime(CTime& time) const;
    DWORD GetTime(LPSYSTEMTIME time) const;
    // A time that is not valid, or a null pointer, makes the control hold none.
    BOOL SetTime(const COleDateTime& time);
    BOOL SetTime(const CTime* time);
    BOOL SetTime(LPSYSTEMTIME time = nullptr);
};

void AFXAPI DDX_DateTimeCtrl(CDataExchange* exchange, int id, CTime& value);
void AFXAPI DDX_DateTimeCtrl(CDataExchange* exchange, int id, COleDateTime& value);
void AFXAPI DDX_MonthCalCtrl(CDataExchange* exchange, int id, COleDateTime& value);
