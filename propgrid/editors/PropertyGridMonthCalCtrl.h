// The month calendar that the property grid drops down under the value of a date.
//
// Opening it (rectangles in screen coordinates):
//
//     auto calendar = std::make_unique<CPropertyGridMonthCalCtrl>();
//     calendar->CreateEx(0, MONTHCAL_CLASS, nullptr, WS_POPUP | WS_BORDER, under, grid->GetParent(), 0);
//     calendar->SetCurSel(date);
//     calendar->SetOwner(grid);
//     calendar->SizeMinReq();
//     calendar->SetWindowPos(nullptr, right - width, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_SHOWWINDOW);
//
// It ends with a date, by a click on a day or Enter: then it sends WM_GRID_DATE_CHOSEN to the owner window,
// the parent when there is no owner, and leaves the closing to it. Or it ends without one, by Escape or by
// losing the focus: then it destroys its own window and sends nothing. While the calendar's own edit of the
// year has the focus all this holds for the edit.
//
// The calendar never deletes itself. Its owner holds the object and may destroy the window and delete the
// object while it handles the message; nothing of the calendar is touched afterwards.
//
// The notifications reach the calendar through the window that it was created with as parent, which must
// be one that the framework knows.
#pragma once

#include <afxdtctl.h>

#include "memory/MemoryFence.h"

namespace tavrin::propgrid {

class CPropertyGridMonthCalCtrl : public CMonthCalCtrl {
    DECLARE_DYNAMIC(CPropertyGridMonthCalCtrl)

public:
    CPropertyGridMonthCalCtrl() = default;

private:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return tavrin::memory::FenceMemory(
            [&] { return CMonthCalCtrl::WindowProc(message, wParam, lParam); });
    }
    // The edit that the calendar opens when its year is clicked: a child that has the focus instead of it.
    class CYearEdit : public CWnd {
    public:
        explicit CYearEdit(CPropertyGridMonthCalCtrl& calendar) : m_calendar(calendar) {}

    protected:
        afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
        afx_msg void OnKillFocus(CWnd* newFocus);
        afx_msg UINT OnGetDlgCode();
        afx_msg void OnDestroy();
        DECLARE_MESSAGE_MAP()

    private:
        CPropertyGridMonthCalCtrl& m_calendar;
    };

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;

    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSelect(NMHDR* notification, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    bool IsOwnChild(const CWnd* window) const;
    void LoseFocusTo(CWnd* window);
    void ReportDate();

    CYearEdit m_yearEdit{*this};
};

}  // namespace tavrin::propgrid
