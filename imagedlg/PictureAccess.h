// What a picture tells assistive technology: its name, the window's text, and when it is one of several to
// choose among, whether it is the chosen one. Selecting it, and its default action, do what a click does.
#pragma once

#include <afxwin.h>

#include <optional>
#include <string>

#include "accessible/AccessibleWindow.h"

namespace tavrin::imagedlg {

class CPictureAccess final : private accessible::IAccessibleContents {
public:
    // The picture outlives this object.
    explicit CPictureAccess(CWnd& picture) : m_picture(picture) {}
    CPictureAccess(const CPictureAccess&) = delete;
    CPictureAccess& operator=(const CPictureAccess&) = delete;

    // Neither at the start. A change of the selection is reported.
    void SetSelectable(const std::wstring& key);
    void SetSelected(bool selected);

    // The answer to WM_GETOBJECT, see CAccessibleWindow. Disconnect is for WM_DESTROY.
    std::optional<LRESULT> Answer(WPARAM flags, LPARAM object);
    void Disconnect() { m_accessible.Disconnect(); }

private:
    int GetChildCount() override { return 0; }
    accessible::ERole GetRole(int /*child*/) override { return accessible::ROLE_GRAPHIC; }
    unsigned GetState(int child) override;
    std::wstring GetName(int child) override;
    std::optional<std::wstring> GetValue(int /*child*/) override { return std::nullopt; }
    std::wstring GetDefaultAction(int child) override;
    std::wstring GetShortcut(int /*child*/) override { return m_key; }
    RECT GetRect(int /*child*/) override { return {}; }
    int HitTest(POINT /*point*/) override { return accessible::kSelf; }
    int GetFocusedChild() override { return accessible::kSelf; }
    void DoDefaultAction(int child) override;
    bool Select(int child) override;

    CWnd& m_picture;
    std::wstring m_key;  // that selects the picture
    bool m_selectable = false;
    bool m_selected = false;
    accessible::CAccessibleWindow m_accessible{*this};
};

}  // namespace tavrin::imagedlg
