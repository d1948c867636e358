// What a property grid's window tells assistive technology: the rows, by the rules of CAccessibleRows; the
// events, by CAccessibleChanges; and what is asked of the rows, which the window carries out when its message
// comes.
#pragma once

#include <afxwin.h>

#include <deque>
#include <string>

#include "accessible/AccessibleWindow.h"
#include "propgrid/ActionRunner.h"
#include "propgrid/accessible/AccessibleChanges.h"
#include "propgrid/accessible/AccessibleRows.h"

namespace tavrin::propgrid {

// Posted to the grid when something is asked of a row; both parameters 0. TakeRequest gives the request.
inline constexpr UINT WM_GRID_ACCESS_REQUEST = WM_USER + 491;

// The row is to be focused, and its default action to be carried out; the window alone for no row.
struct AccessRequest {
    RowId row;
    bool defaultAction = false;
    unsigned generation = 0;  // of the model, that the row is of
};

class CGridAccess final : private accessible::IAccessibleContents {
public:
    // All of them outlive this object.
    CGridAccess(IGridWindow& window, const CGridModel& model, CGridLayout& layout)
        : m_window(window), m_model(model), m_rows(model, layout) {}
    CGridAccess(const CGridAccess&) = delete;
    CGridAccess& operator=(const CGridAccess&) = delete;

    // The grid's name; its window's text while it is empty.
    void SetName(const std::wstring& name) { m_name = name; }

    // The answer to WM_GETOBJECT, see CAccessibleWindow. Disconnect is for WM_DESTROY.
    std::optional<LRESULT> Answer(WPARAM flags, LPARAM object);
    void Disconnect();

    void NoteValue(Id item) { m_changes.NoteValue(item); }
    void NoteState(Id item) { m_changes.NoteState(item); }
    void NoteWindowFocus() { m_changes.NoteWindowFocus(); }
    // Reports what has changed. Who listens in this process may do anything meanwhile.
    void Report();

    // The next request; none when the rows that it was about are gone.
    std::optional<AccessRequest> TakeRequest();

private:
    int GetChildCount() override { return Rows().GetCount(); }
    accessible::ERole GetRole(int child) override { return Rows().GetRole(child); }
    unsigned GetState(int child) override {
        return Rows().GetState(child, accessible::ReadCondition(Window()));
    }
    std::wstring GetName(int child) override;
    std::optional<std::wstring> GetValue(int child) override;
    std::wstring GetDefaultAction(int child) override { return Rows().GetDefaultAction(child); }
    std::wstring GetShortcut(int child) override { return Rows().GetShortcut(child); }
    RECT GetRect(int child) override;
    int HitTest(POINT point) override;
    int GetFocusedChild() override { return Rows().GetFocusedChild(); }
    void DoDefaultAction(int child) override { Post({m_rows.FindRow(child), true}); }
    bool Select(int child) override;

    HWND Window() const { return m_window.GetWindow().GetSafeHwnd(); }
    CAccessibleRows& Rows();
    void Post(AccessRequest request);

    IGridWindow& m_window;
    const CGridModel& m_model;
    CAccessibleRows m_rows;
    CAccessibleChanges m_changes{m_model, m_rows};
    std::wstring m_name;
    std::deque<AccessRequest> m_requests;
    accessible::CAccessibleWindow m_accessible{*this};
};

}  // namespace tavrin::propgrid
