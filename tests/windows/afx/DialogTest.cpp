#include <afxwin.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "tests/windows/afx/DialogTemplate.h"
#include "tests/windows/support/ImportHook.h"

extern "C" HWND(WINAPI* __imp_SetActiveWindow)(HWND window) IMPORT_ENTRY(SetActiveWindow, 4);

namespace {

// A dialog that runs a step when it is initialized and one when it has been shown.
class CSteppedDialog : public CDialog {
public:
    explicit CSteppedDialog(const CDialogTemplate& dialogTemplate, CWnd* parent = nullptr) {
        InitModalIndirect(dialogTemplate.Get(), parent);
    }

    std::function<BOOL()> m_onInit = [] { return TRUE; };
    std::function<void()> m_onShown = [this] { EndDialog(IDOK); };
    std::function<BOOL(MSG*)> m_preTranslate = [](MSG*) { return FALSE; };
    bool m_wasShown = false;  // has been on the screen
    CRect m_rect;
    std::string* m_log = nullptr;

    BOOL PreTranslateMessage(MSG* message) override {
        return m_preTranslate(message) || CDialog::PreTranslateMessage(message);
    }

protected:
    DECLARE_MESSAGE_MAP()
    BOOL OnInitDialog() override { return CDialog::OnInitDialog() && m_onInit(); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT result = CDialog::WindowProc(message, wParam, lParam);
        if (message == WM_WINDOWPOSCHANGED &&
            (reinterpret_cast<const WINDOWPOS*>(lParam)->flags & SWP_SHOWWINDOW) != 0 && !m_wasShown) {
            m_wasShown = true;
            PostMessage(WM_APP);
        }
        return result;
    }
    void OnDestroy() {
        if (m_log != nullptr) {
            *m_log += "destroyed;";
        }
        CDialog::OnDestroy();
    }
    LRESULT OnShown(WPARAM, LPARAM) {
        GetWindowRect(m_rect);
        m_onShown();
        return 0;
    }
};

BEGIN_MESSAGE_MAP(CSteppedDialog, CDialog)
    ON_WM_DESTROY()
    ON_MESSAGE(WM_APP, &CSteppedDialog::OnShown)
END_MESSAGE_MAP()

class CLoggingOwner : public CWnd {
public:
    std::string m_log;
    const CWnd* m_dialog = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_ENABLE) {
            m_log += wParam != 0 ? "enabled;" : "disabled;";
        }
        if (message == WM_ACTIVATE && LOWORD(wParam) != WA_INACTIVE && m_dialog != nullptr) {
            m_log += m_dialog->m_hWnd != nullptr && m_dialog->IsWindowVisible() ? "active;" : "active late;";
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class Dialog : public testing::Test {
protected:
    void SetUp() override {
        m_owner.CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP | WS_VISIBLE, 300, 200, 400, 300,
                         nullptr, nullptr);
        m_edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &m_owner, 1);
        m_owner.SetActiveWindow();
        m_edit.SetFocus();
    }
    static CDialogTemplate WithControls() {
        CDialogTemplate made;
        made.Add(editClass, 10, L"", childStyle | WS_TABSTOP, 5, 5, 50, 12)
            .Add(editClass, 11, L"", childStyle | WS_TABSTOP, 5, 20, 50, 12)
            .Add(buttonClass, IDOK, L"OK", childStyle | WS_TABSTOP | BS_DEFPUSHBUTTON, 5, 40, 40, 14)
            .Add(buttonClass, IDCANCEL, L"Cancel", childStyle | WS_TABSTOP, 50, 40, 40, 14);
        return made;
    }
    static void PressKey(HWND window, WPARAM key) {
        ::PostMessage(window, WM_KEYDOWN, key, 1);
        ::PostMessage(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    }

    CLoggingOwner m_owner;
    CEdit m_edit;
    const CDialogTemplate m_empty;
};

TEST_F(Dialog, EndsWithTheResultItIsGiven) {
    CSteppedDialog dialog(m_empty, &m_owner);
    dialog.m_onShown = [&] { dialog.EndDialog(4711); };
    EXPECT_EQ(dialog.DoModal(), 4711);
    EXPECT_TRUE(dialog.m_wasShown);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST_F(Dialog, CanRunAgain) {
    CSteppedDialog dialog(m_empty, &m_owner);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    dialog.m_wasShown = false;
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_TRUE(dialog.m_wasShown);
}

TEST_F(Dialog, CannotRunWithoutATemplate) {
    CDialog none(4711u, &m_owner);
    EXPECT_EQ(none.DoModal(), -1);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

class CResourceDialog : public CDialog {
public:
    CResourceDialog() : CDialog(102u) {}
    CString m_title, m_ok;

private:
    BOOL OnInitDialog() override {
        GetWindowText(m_title);
        GetDlgItem(IDOK)->GetWindowText(m_ok);
        EndDialog(5);
        return TRUE;
    }
};

TEST_F(Dialog, ComesFromAResource) {
    CResourceDialog dialog;
    EXPECT_EQ(dialog.DoModal(), 5);
    EXPECT_EQ(dialog.m_title, L"Item - Property");
    EXPECT_EQ(dialog.m_ok, L"OK");
    EXPECT_FALSE(dialog.InitModalIndirect(m_empty.Get())) << "it comes from a resource";
}

TEST_F(Dialog, GivesItsOwnerBackBeforeItGoesAway) {
    CSteppedDialog dialog(m_empty, &m_owner);
    dialog.m_log = &m_owner.m_log;
    m_owner.m_dialog = &dialog;
    dialog.m_onShown = [&] {
        EXPECT_FALSE(m_owner.IsWindowEnabled());
        EXPECT_EQ(::GetWindow(dialog.m_hWnd, GW_OWNER), m_owner.m_hWnd);
        dialog.EndDialog(IDOK);
    };
    dialog.DoModal();
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    // While the dialog is still there, so that no other program's window comes to the front meanwhile.
    EXPECT_EQ(m_owner.m_log, "disabled;enabled;active;destroyed;");
}

TEST_F(Dialog, LeavesADisabledOwnerDisabled) {
    m_owner.EnableWindow(FALSE);
    CSteppedDialog dialog(m_empty, &m_owner);
    dialog.DoModal();
    EXPECT_FALSE(m_owner.IsWindowEnabled());
}

TEST_F(Dialog, IsOwnedByTheWindowAboveAControl) {
    CSteppedDialog dialog(m_empty, &m_edit);
    dialog.m_onShown = [&] {
        EXPECT_EQ(::GetWindow(dialog.m_hWnd, GW_OWNER), m_owner.m_hWnd);
        EXPECT_FALSE(m_owner.IsWindowEnabled());
        EXPECT_TRUE(m_edit.GetStyle() & WS_VISIBLE && !(m_edit.GetStyle() & WS_DISABLED));
        dialog.EndDialog(IDOK);
    };
    dialog.DoModal();
}

TEST_F(Dialog, DisablesTheTopOfItsChainOfOwnersToo) {
    CWnd popup;
    popup.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, m_owner.m_hWnd, nullptr);
    CSteppedDialog dialog(m_empty, &popup);
    dialog.m_onShown = [&] {
        EXPECT_FALSE(popup.IsWindowEnabled());
        EXPECT_FALSE(m_owner.IsWindowEnabled());
        dialog.EndDialog(IDOK);
    };
    dialog.DoModal();
    EXPECT_TRUE(popup.IsWindowEnabled());
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

// Without an owner there is no window to activate: SetActiveWindow(nullptr) would take the activation from
// the thread's other windows.
TEST_F(Dialog, ActivatesNothingWhenItHasNoOwner) {
    m_owner.DestroyWindow();
    static int calls;
    calls = 0;
    const CImportHook activate(
        __imp_SetActiveWindow, +[](HWND) WINAPI -> HWND {
            ++calls;
            return nullptr;
        });
    CSteppedDialog dialog(m_empty, nullptr);
    HWND active = nullptr;
    dialog.m_onShown = [&] {
        EXPECT_EQ(::GetWindow(dialog.m_hWnd, GW_OWNER), nullptr);
        active = ::GetActiveWindow();
        dialog.EndDialog(4711);
    };
    EXPECT_EQ(dialog.DoModal(), 4711);
    EXPECT_NE(active, nullptr);
    EXPECT_EQ(calls, 0);
}

TEST_F(Dialog, GivesActivationAndFocusBack) {
    const CDialogTemplate withControls = WithControls();
    CSteppedDialog dialog(withControls, &m_owner);
    dialog.m_onShown = [&] {
        EXPECT_EQ(::GetActiveWindow(), dialog.m_hWnd);
        EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog.m_hWnd, 10)) << "the first control that can have it";
        dialog.EndDialog(IDOK);
    };
    dialog.DoModal();
    EXPECT_EQ(::GetActiveWindow(), m_owner.m_hWnd);
    EXPECT_EQ(::GetFocus(), m_edit.m_hWnd);
}

TEST_F(Dialog, LeavesTheFocusToOnInitDialogThatReturnsFalse) {
    const CDialogTemplate withControls = WithControls();
    CSteppedDialog dialog(withControls, &m_owner);
    dialog.m_onInit = [&] {
        dialog.GetDlgItem(11)->SetFocus();
        return FALSE;
    };
    dialog.m_onShown = [&] {
        EXPECT_EQ(::GetFocus(), ::GetDlgItem(dialog.m_hWnd, 11));
        dialog.EndDialog(IDOK);
    };
    dialog.DoModal();
}

TEST_F(Dialog, ThatEndsInOnInitDialogIsNeverSeen) {
    for (const DWORD style : {DWORD{WS_POPUP | WS_CAPTION}, DWORD{WS_POPUP | WS_CAPTION | WS_VISIBLE}}) {
        const CDialogTemplate made(style);
        CSteppedDialog dialog(made, &m_owner);
        HWND seen = nullptr;
        dialog.m_onInit = [&] {
            seen = dialog.m_hWnd;
            dialog.EndDialog(6);
            return TRUE;
        };
        EXPECT_EQ(dialog.DoModal(), 6);
        EXPECT_FALSE(dialog.m_wasShown);
        EXPECT_FALSE(::IsWindow(seen));
        EXPECT_TRUE(m_owner.IsWindowEnabled());
        EXPECT_EQ(::GetFocus(), m_edit.m_hWnd);
    }
}

TEST_F(Dialog, ThatPostsItsOwnEndIsNeverSeen) {
    CSteppedDialog dialog(m_empty, &m_owner);
    dialog.m_onInit = [&] {
        dialog.PostMessage(WM_CLOSE);
        return FALSE;
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_FALSE(dialog.m_wasShown);
}

TEST_F(Dialog, EndsByEnterEscapeAndTheCloseBox) {
    const CDialogTemplate withControls = WithControls();
    const auto run = [&](auto act) {
        CSteppedDialog dialog(withControls, &m_owner);
        dialog.m_onShown = [&] { act(dialog.m_hWnd); };
        return dialog.DoModal();
    };
    EXPECT_EQ(run([](HWND) { PressKey(::GetFocus(), VK_RETURN); }), IDOK);
    EXPECT_EQ(run([](HWND) { PressKey(::GetFocus(), VK_ESCAPE); }), IDCANCEL);
    EXPECT_EQ(run([](HWND dialog) { ::PostMessage(dialog, WM_SYSCOMMAND, SC_CLOSE, 0); }), IDCANCEL);
    EXPECT_EQ(run([](HWND dialog) { ::PostMessage(::GetDlgItem(dialog, IDOK), BM_CLICK, 0, 0); }), IDOK);
}

TEST_F(Dialog, MovesTheFocusByTheTabKey) {
    const CDialogTemplate withControls = WithControls();
    CSteppedDialog dialog(withControls, &m_owner);
    HWND focus = nullptr;
    dialog.m_preTranslate = [&](MSG* message) {
        if (message->message == WM_KEYUP && message->wParam == VK_TAB) {
            focus = ::GetFocus();
            dialog.EndDialog(IDOK);
        }
        return FALSE;
    };
    HWND second = nullptr;
    dialog.m_onShown = [&] {
        second = ::GetDlgItem(dialog.m_hWnd, 11);
        PressKey(::GetFocus(), VK_TAB);
    };
    dialog.DoModal();
    EXPECT_EQ(focus, second);
}

class CTranslatingEdit : public CEdit {
public:
    std::string& m_log;
    bool m_swallow = false;
    explicit CTranslatingEdit(std::string& log) : m_log(log) {}
    BOOL PreTranslateMessage(MSG* message) override {
        if (message->message == WM_SYSCHAR) {
            m_log += "edit;";
        }
        return m_swallow || CEdit::PreTranslateMessage(message);
    }
};

TEST_F(Dialog, OffersAMessageToItsWindowThenToTheParents) {
    const CDialogTemplate withControls = WithControls();
    for (const bool swallow : {false, true}) {
        std::string log;
        CTranslatingEdit edit(log);
        edit.m_swallow = swallow;
        CSteppedDialog dialog(withControls, &m_owner);
        dialog.m_onInit = [&] { return edit.SubclassDlgItem(10, &dialog); };
        dialog.m_preTranslate = [&](MSG* message) {
            if (message->message == WM_SYSCHAR) {
                log += "dialog;";
            }
            return FALSE;
        };
        dialog.m_onShown = [&] {
            edit.PostMessage(WM_SYSCHAR, 'q');
            dialog.PostMessage(WM_COMMAND, IDCANCEL);
        };
        dialog.DoModal();
        EXPECT_EQ(log, swallow ? "edit;" : "edit;dialog;");
    }
}

TEST_F(Dialog, RunsWithinAnother) {
    CSteppedDialog outer(m_empty, &m_owner), inner(m_empty, &outer);
    outer.m_onShown = [&] {
        inner.m_onShown = [&] {
            EXPECT_FALSE(outer.IsWindowEnabled());
            EXPECT_FALSE(m_owner.IsWindowEnabled());
            inner.EndDialog(8);
        };
        EXPECT_EQ(inner.DoModal(), 8);
        EXPECT_TRUE(outer.IsWindowEnabled());
        EXPECT_FALSE(m_owner.IsWindowEnabled());
        EXPECT_EQ(::GetActiveWindow(), outer.m_hWnd);
        outer.EndDialog(9);
    };
    EXPECT_EQ(outer.DoModal(), 9);
}

TEST_F(Dialog, EndsWhenTheProgramIsToEndAndPassesThatOn) {
    CSteppedDialog dialog(m_empty, &m_owner);
    dialog.m_onShown = [] { ::PostQuitMessage(3); };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    MSG message;
    ASSERT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 3u);
}

TEST_F(Dialog, EndsWithItsWindow) {
    CSteppedDialog dialog(m_empty, &m_owner);
    dialog.m_onShown = [&] { dialog.DestroyWindow(); };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(Dialog, ThatOnlyChangesItsSizeIsCentredStill) {
    CRect owner;
    m_owner.GetWindowRect(owner);
    CSteppedDialog dialog(m_empty, &m_owner);
    dialog.m_onInit = [&] {
        dialog.SetWindowPos(nullptr, 0, 0, 120, 80, SWP_NOMOVE | SWP_NOZORDER);
        return TRUE;
    };
    dialog.DoModal();
    EXPECT_EQ(dialog.m_rect.Width(), 120);
    EXPECT_NEAR(dialog.m_rect.CenterPoint().x, owner.CenterPoint().x, 1);
    EXPECT_NEAR(dialog.m_rect.CenterPoint().y, owner.CenterPoint().y, 1);
}

TEST_F(Dialog, IsCentredOverItsOwnerUnlessItIsPlaced) {
    CRect owner;
    m_owner.GetWindowRect(owner);
    CSteppedDialog centerd(m_empty, &m_owner);
    centerd.DoModal();
    EXPECT_NEAR(centerd.m_rect.CenterPoint().x, owner.CenterPoint().x, 1);
    EXPECT_NEAR(centerd.m_rect.CenterPoint().y, owner.CenterPoint().y, 1);
    CSteppedDialog placed(m_empty, &m_owner);
    placed.m_onInit = [&] { return placed.SetWindowPos(&CWnd::wndTop, 100, 5, 0, 0, SWP_NOSIZE); };
    placed.DoModal();
    EXPECT_TRUE(placed.m_rect.TopLeft() == CPoint(100, 5));
    const CDialogTemplate elsewhere(WS_POPUP | WS_CAPTION, 10, 20);
    CSteppedDialog templatePlaced(elsewhere, &m_owner);
    templatePlaced.DoModal();
    EXPECT_LT(templatePlaced.m_rect.left, owner.left + 60);
}

class CBoundDialog : public CDialog {
public:
    CEdit m_edit;
    CButton m_button;
    HWND m_editWindow = nullptr;

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        DDX_Control(exchange, 10, m_edit);
        DDX_Control(exchange, IDOK, m_button);
    }
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        m_editWindow = m_edit.m_hWnd;
        EXPECT_EQ(m_edit.m_hWnd, ::GetDlgItem(m_hWnd, 10));
        EXPECT_EQ(GetDlgItem(10), &m_edit);
        EXPECT_TRUE(UpdateData(TRUE)) << "binding happens once";
        OnOK();
        return TRUE;
    }
};

TEST_F(Dialog, BindsItsMembersToItsControls) {
    const CDialogTemplate withControls = WithControls();
    CBoundDialog dialog;
    dialog.InitModalIndirect(withControls.Get(), &m_owner);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_NE(dialog.m_editWindow, nullptr);
    EXPECT_EQ(dialog.m_edit.m_hWnd, nullptr) << "freed with the control";
}

TEST_F(Dialog, WithoutModalLoopIsHiddenByItsEnd) {
    CDialog dialog;
    const CDialogTemplate made(WS_POPUP | WS_CAPTION | WS_VISIBLE);
    ASSERT_TRUE(dialog.CreateIndirect(made.Get(), &m_owner));
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    dialog.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_NE(dialog.m_hWnd, nullptr);
    EXPECT_FALSE(dialog.IsWindowVisible());
    dialog.DestroyWindow();
}

}  // namespace
