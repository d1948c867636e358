// What the drop-down list's window tells assistive technology, by the rules of ListContents.
#pragma once

#include <afxwin.h>

#include <optional>

#include "accessible/AccessibleWindow.h"
#include "propgrid/accessible/AccessibleList.h"

namespace tavrin::propgrid {

// Posted to the list when something is asked of a string: wParam is its child id, lParam whether it is to be
// chosen as Enter does, or else selected.
inline constexpr UINT WM_LIST_ACCESS_REQUEST = WM_USER + 492;

class CListAccess final : private accessible::IAccessibleContents {
public:
    // Both outlive this object.
    CListAccess(CWnd& list, const ListContents& contents) : m_list(list), m_contents(contents) {}
    CListAccess(const CListAccess&) = delete;
    CListAccess& operator=(const CListAccess&) = delete;

    // The answer to WM_GETOBJECT, see CAccessibleWindow. Disconnect is for WM_DESTROY.
    std::optional<LRESULT> Answer(WPARAM flags, LPARAM object);
    void Disconnect() { m_accessible.Disconnect(); }

    // Another string is selected, and with it focused. Who listens in this process may do anything meanwhile.
    void ReportSelection() const;

private:
    int GetChildCount() override { return m_contents.GetLast() + 1; }
    accessible::ERole GetRole(int child) override;
    unsigned GetState(int child) override {
        return m_contents.GetState(child, accessible::ReadCondition(m_list.GetSafeHwnd()));
    }
    std::wstring GetName(int child) override { return m_contents.GetName(child); }
    std::optional<std::wstring> GetValue(int child) override;
    std::wstring GetDefaultAction(int child) override;
    std::wstring GetShortcut(int child) override;
    RECT GetRect(int child) override;
    int HitTest(POINT point) override;
    int GetFocusedChild() override { return m_contents.GetSelectedChild(); }
    void DoDefaultAction(int child) override { Post(child, true); }
    bool Select(int child) override;

    void Post(int child, bool choose) const;

    CWnd& m_list;
    const ListContents& m_contents;
    accessible::CAccessibleWindow m_accessible{*this};
};

}  // namespace tavrin::propgrid
