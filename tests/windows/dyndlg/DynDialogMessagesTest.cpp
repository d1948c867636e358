// How a dialog ends, which windows its commands go to, and the messages that it answers.
#include <algorithm>
#include <memory>

#include "tests/windows/dyndlg/DynDialogFixture.h"

namespace {

constexpr UINT editId = 300;

// A dialog that records which of its hooks ran.
class CListeningDialog : public CTestDialog {
public:
    using CTestDialog::CTestDialog;

    std::vector<Command> log;
    int helpRequests = 0;
    BOOL helpAnswer = TRUE;

    BOOL OnHelpInfo(HELPINFO* help) override {
        ++helpRequests;
        CTestDialog::OnHelpInfo(help);
        return helpAnswer;
    }

protected:
    void OnNoted() { log.push_back({m_hWnd, GetCurrentMessage()->wParam, GetCurrentMessage()->lParam}); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CListeningDialog, CTestDialog)
    ON_COMMAND(0, OnNoted)
    ON_COMMAND(301, OnNoted)
END_MESSAGE_MAP()

class DynDialogMessages : public DynDialog {
protected:
    // Runs a dialog with one edit control that shows "before"; `act` has to end it.
    INT_PTR Run(CModalDriver::Step act) {
        CDynDialogEx dialog(&m_parent);
        dialog.AddDlgControl(L"EDIT", L"", tabbed, 0, nullptr, &m_text, editId);
        m_driver->Then([act](HWND window) {
            ::SetDlgItemTextW(window, editId, L"after");
            act(window);
        });
        const INT_PTR result = dialog.DoModal();
        EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
        return result;
    }

    CString m_text = L"before";
};

// A key as the keyboard sends it, to whichever control has the focus.
void PressKey(WPARAM key) {
    ::PostMessageW(::GetFocus(), WM_KEYDOWN, key, 1);
    ::PostMessageW(::GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

TEST_F(DynDialogMessages, OkEndsItAndKeepsWhatWasEntered) {
    EXPECT_EQ(Run([](HWND window) { PressButton(window, IDOK); }), IDOK);
    EXPECT_STREQ(m_text, L"after");
}

TEST_F(DynDialogMessages, CancelEndsItAndKeepsNothing) {
    EXPECT_EQ(Run([](HWND window) { PressButton(window, IDCANCEL); }), IDCANCEL);
    EXPECT_STREQ(m_text, L"before");
}

TEST_F(DynDialogMessages, EscapeCancels) {
    EXPECT_EQ(Run([](HWND) { PressKey(VK_ESCAPE); }), IDCANCEL);
    EXPECT_STREQ(m_text, L"before");
}

TEST_F(DynDialogMessages, EnterInAnEditIsOk) {
    EXPECT_EQ(Run([](HWND window) {
                  ::SetFocus(::GetDlgItem(window, editId));
                  PressKey(VK_RETURN);
              }),
              IDOK);
    EXPECT_STREQ(m_text, L"after");
}

TEST_F(DynDialogMessages, TheCloseBoxCancels) {
    EXPECT_EQ(Run([](HWND window) { ::PostMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0); }), IDCANCEL);
    EXPECT_STREQ(m_text, L"before");
}

TEST_F(DynDialogMessages, AnyNotificationOfTheOkButtonIsOk) {
    EXPECT_EQ(Run([](HWND window) {
                  ::PostMessageW(window, WM_COMMAND, MAKEWPARAM(IDOK, BN_DBLCLK),
                                 reinterpret_cast<LPARAM>(::GetDlgItem(window, IDOK)));
              }),
              IDOK);
    EXPECT_STREQ(m_text, L"after");
}

TEST_F(DynDialogMessages, TheFirstControlHasTheFocus) {
    Run([](HWND window) {
        EXPECT_EQ(::GetFocus(), ::GetDlgItem(window, editId));
        PressButton(window, IDOK);
    });
}

TEST_F(DynDialogMessages, OkAndCancelAreNotTheParentsToHear) {
    Run([](HWND window) { PressButton(window, IDOK); });
    Run([](HWND window) { PressButton(window, IDCANCEL); });
    for (const Command& command : m_parent.commands) {
        EXPECT_EQ(LOWORD(command.wParam), editId);
    }
}

TEST_F(DynDialogMessages, AControlsCommandGoesToTheParentFirst) {
    CListeningDialog dialog(&m_parent);
    m_parent.log = &dialog.log;
    dialog.AddDlgControl(L"BUTTON", L"press", tabbed, 0, nullptr, nullptr, 301);
    HWND button = nullptr;
    HWND dialogWindow = nullptr;
    RunWithOk(dialog, [&](HWND window) {
        dialogWindow = window;
        button = ::GetDlgItem(window, 301);
        dialog.log.clear();
        ::SendMessageW(button, BM_CLICK, 0, 0);
    });
    ASSERT_EQ(dialog.log.size(), 2U);
    EXPECT_EQ(dialog.log[0].window, m_parent.m_hWnd);
    EXPECT_EQ(dialog.log[1].window, dialogWindow);
    for (const Command& command : dialog.log) {
        EXPECT_EQ(command.wParam, MAKEWPARAM(301, BN_CLICKED));
        EXPECT_EQ(command.lParam, reinterpret_cast<LPARAM>(button));
    }
    m_parent.log = nullptr;
}

TEST_F(DynDialogMessages, ACommandWithoutAnIdStaysInTheDialog) {
    CListeningDialog dialog(&m_parent);
    RunWithOk(dialog, [&](HWND window) {
        m_parent.commands.clear();
        ::SendMessageW(window, WM_COMMAND, 0, 0);
        EXPECT_EQ(dialog.log.size(), 1U);
        EXPECT_TRUE(m_parent.commands.empty());
    });
}

TEST_F(DynDialogMessages, ADialogWithoutParentKeepsItsCommands) {
    CListeningDialog dialog(nullptr);
    EXPECT_EQ(dialog.GetParentWnd(), nullptr);
    dialog.AddDlgControl(L"BUTTON", L"press", tabbed, 0, nullptr, nullptr, 301);
    EXPECT_EQ(RunWithOk(dialog, [&](HWND window) { ::SendDlgItemMessageW(window, 301, BM_CLICK, 0, 0); }),
              IDOK);
    EXPECT_EQ(dialog.log.size(), 1U);
}

TEST_F(DynDialogMessages, HelpIsAskedOfTheDialogAndIsHandled) {
    CListeningDialog dialog(&m_parent);
    RunWithOk(dialog, [&](HWND window) {
        HELPINFO help = {};
        help.cbSize = sizeof(help);
        EXPECT_EQ(::SendMessageW(window, WM_HELP, 0, reinterpret_cast<LPARAM>(&help)), TRUE);
    });
    EXPECT_EQ(dialog.helpRequests, 1);
    CDynDialogEx plainDialog(&m_parent);
    HELPINFO help = {};
    EXPECT_EQ(plainDialog.OnHelpInfo(&help), TRUE);
}

// Whatever is asked of a control object by its parent.
class CReflectingControl : public CWnd {
public:
    std::vector<UINT> messages;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        messages.push_back(message);
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    }
};

TEST_F(DynDialogMessages, AnOwnerDrawnControlIsAskedToDrawAndToMeasureItself) {
    CDynDialogEx dialog(&m_parent);
    CReflectingControl list;
    const UINT id =
        dialog.AddDlgControl(L"LISTBOX", L"", tabbed | LBS_OWNERDRAWVARIABLE, 0, nullptr, &list, 0);
    RunWithOk(dialog, [&](HWND window) {
        list.messages.clear();
        const HWND control = ::GetDlgItem(window, static_cast<int>(id));
        ::SendMessageW(control, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"one"));
        ::InvalidateRect(control, nullptr, TRUE);
        ::UpdateWindow(control);
        const auto has = [&](UINT message) {
            return std::count(list.messages.begin(), list.messages.end(), message) > 0;
        };
        EXPECT_TRUE(has(WM_MEASUREITEM));
        EXPECT_TRUE(has(WM_DRAWITEM));
    });
}

class DynDialogModeless : public DynDialog {
protected:
    // A modeless dialog, open, whose edit control holds "after".
    void Open() {
        m_dialog.m_modeless = true;
        m_dialog.AddDlgControl(L"EDIT", L"", tabbed, 0, nullptr, &m_text, editId);
        EXPECT_EQ(m_dialog.DoModal(), TRUE);
        ASSERT_TRUE(::IsWindow(m_dialog.m_hWnd));
        EXPECT_TRUE(m_parent.IsWindowEnabled());
        EXPECT_EQ(::GetWindow(m_dialog, GW_OWNER), m_parent.m_hWnd);
        EXPECT_EQ(TextOf(::GetDlgItem(m_dialog, editId)), L"before");
        ::SetDlgItemTextW(m_dialog, editId, L"after");
    }

    CString m_text = L"before";
    CTestDialog m_dialog{&m_parent};
};

TEST_F(DynDialogModeless, OkDestroysTheWindowWithoutTakingValues) {
    Open();
    m_dialog.SendMessage(WM_COMMAND, IDOK);
    EXPECT_EQ(m_dialog.m_hWnd, nullptr);
    EXPECT_STREQ(m_text, L"before");
}

TEST_F(DynDialogModeless, CancelDestroysTheWindow) {
    Open();
    m_dialog.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ(m_dialog.m_hWnd, nullptr);
}

TEST_F(DynDialogModeless, GivesFalseWithoutAWindow) {
    m_dialog.m_modeless = true;
    m_dialog.AddSubclassedDlgControl(L"SysListView32", L"", tabbed, 0, nullptr, 0);  // no class for templates
    EXPECT_EQ(m_dialog.DoModal(), FALSE);
    EXPECT_EQ(m_dialog.m_hWnd, nullptr);
}

// The ids of the children whose end a window was notified of, in order.
std::vector<UINT> endedChildren;
WNDPROC listenedWindow = nullptr;

LRESULT CALLBACK ListenToChildren(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_DESTROY) {
        endedChildren.push_back(HIWORD(wParam));
    }
    return ::CallWindowProcW(listenedWindow, window, message, wParam, lParam);
}

TEST_F(DynDialogModeless, TakesItsControlsWithItFromTheLastToTheFirst) {
    CParentWindow parent;
    auto dialog = std::make_unique<CTestDialog>(&parent);
    dialog->m_modeless = true;
    for (const UINT id : {310U, 311U, 312U}) {
        dialog->AddDlgControl(L"EDIT", L"", tabbed, 0, nullptr, nullptr, id);
    }
    ASSERT_EQ(dialog->DoModal(), TRUE);
    const HWND window = dialog->m_hWnd;
    endedChildren.clear();
    listenedWindow = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ListenToChildren)));
    dialog.reset();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(endedChildren, (std::vector<UINT>{IDCANCEL, IDOK, 312, 311, 310}));
}

}  // namespace
