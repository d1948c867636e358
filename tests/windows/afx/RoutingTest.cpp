// The way of messages and commands through message maps.
#include <afxcmn.h>
#include <gtest/gtest.h>

#include <string>

namespace {

constexpr UINT commandId = 7, buttonId = 8, editId = 9, notifyId = 10;

class CBaseWnd : public CWnd {
    DECLARE_DYNAMIC(CBaseWnd)
    std::string m_messages;

protected:
    DECLARE_MESSAGE_MAP()
    void OnSize(UINT, int width, int height) {
        m_messages += "size " + std::to_string(width) + "x" + std::to_string(height) + ";";
    }
    LRESULT OnApp(WPARAM wParam, LPARAM) {
        m_messages += "base;";
        return static_cast<LRESULT>(wParam) + 1;
    }
    LRESULT OnOther(WPARAM, LPARAM) {
        m_messages += "other;";
        return 5;
    }
};

IMPLEMENT_DYNAMIC(CBaseWnd, CWnd)

BEGIN_MESSAGE_MAP(CBaseWnd, CWnd)
    ON_WM_SIZE()
    ON_MESSAGE(WM_APP, OnApp)
    ON_MESSAGE(WM_APP + 1, OnOther)
END_MESSAGE_MAP()

class CDerivedWnd : public CBaseWnd {
    DECLARE_DYNAMIC(CDerivedWnd)
    bool m_swallow = false;

protected:
    DECLARE_MESSAGE_MAP()
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        if (m_swallow && message == WM_APP) {
            *result = 77;
            return TRUE;
        }
        return CBaseWnd::OnWndMsg(message, wParam, lParam, result);
    }
    LRESULT OnApp(WPARAM wParam, LPARAM lParam) {
        m_messages += "derived;";
        return CBaseWnd::OnApp(wParam, lParam) * 10;
    }
    void OnCommandSeven() { m_messages += "seven;"; }
    void OnButton() { m_messages += "button;"; }
    void OnEditChanged() { m_messages += "edit;"; }
    void OnRange(UINT id) { m_messages += "range " + std::to_string(id) + ";"; }
    void OnNotification(NMHDR* header, LRESULT* result) {
        m_messages += "notify " + std::to_string(static_cast<int>(header->code)) + ";";
        *result = 33;
    }
    void OnKeyDown(UINT key, UINT repeat, UINT flags) {
        m_messages += "key " + std::to_string(key) + " " + std::to_string(repeat) + ";";
        CWnd::OnKeyDown(key, repeat, flags);
    }
    void OnLButtonDown(UINT, CPoint point) {
        m_messages += "down " + std::to_string(point.x) + "," + std::to_string(point.y) + ";";
    }
    BOOL OnMouseWheel(UINT, short delta, CPoint) {
        m_messages += "wheel " + std::to_string(delta) + ";";
        return TRUE;
    }
    UINT OnGetDlgCode() { return CBaseWnd::OnGetDlgCode() | DLGC_WANTARROWS; }
    void OnVScroll(UINT code, UINT position, CScrollBar* bar) {
        m_messages +=
            "scroll " + std::to_string(code) + " " + std::to_string(position) + (bar ? " bar;" : ";");
    }
};

IMPLEMENT_DYNAMIC(CDerivedWnd, CBaseWnd)

BEGIN_MESSAGE_MAP(CDerivedWnd, CBaseWnd)
    ON_MESSAGE(WM_APP, OnApp)
    ON_COMMAND(commandId, OnCommandSeven)
    ON_BN_CLICKED(buttonId, OnButton)
    ON_EN_CHANGE(editId, OnEditChanged)
    ON_CONTROL_RANGE(STN_CLICKED, 20, 22, OnRange)
    ON_NOTIFY(NM_CLICK, notifyId, OnNotification)
    ON_WM_KEYDOWN()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEWHEEL()
    ON_WM_GETDLGCODE()
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

class Routing : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(
            m_window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 100, 50, nullptr, nullptr));
        m_window.m_messages.clear();
    }
    std::string TakeMessages() { return std::exchange(m_window.m_messages, {}); }

    CDerivedWnd m_window;
};

TEST_F(Routing, AsksTheDerivedMapBeforeTheBaseMap) {
    EXPECT_EQ(m_window.SendMessage(WM_APP, 4), 50);
    EXPECT_EQ(TakeMessages(), "derived;base;");
    EXPECT_EQ(m_window.SendMessage(WM_APP + 1), 5);
    EXPECT_EQ(TakeMessages(), "other;");
}

TEST_F(Routing, GivesWhatNoMapKnowsToTheDefaultProcedure) {
    m_window.SetWindowText(L"title");
    CString title;
    m_window.GetWindowText(title);
    EXPECT_EQ(title, L"title");
    EXPECT_EQ(m_window.SendMessage(WM_APP + 2), 0);
}

TEST_F(Routing, CanBeTakenOverBeforeTheMap) {
    m_window.m_swallow = true;
    EXPECT_EQ(m_window.SendMessage(WM_APP, 4), 77);
    EXPECT_EQ(TakeMessages(), "");
}

TEST_F(Routing, UnpacksTheParametersOfMessages) {
    m_window.SetWindowPos(nullptr, 0, 0, 120, 60, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(TakeMessages(), "size 120x60;");
    m_window.SendMessage(WM_KEYDOWN, VK_F5, MAKELPARAM(3, 0));
    EXPECT_EQ(TakeMessages(), "key 116 3;");
    m_window.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(-5, 6));
    EXPECT_EQ(TakeMessages(), "down -5,6;");
    EXPECT_EQ(m_window.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -120)), 1);
    EXPECT_EQ(TakeMessages(), "wheel -120;");
    EXPECT_EQ(m_window.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS);
    m_window.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 40));
    EXPECT_EQ(TakeMessages(), "scroll 4 40;");
}

TEST_F(Routing, LeadsCommandsByIdAndCode) {
    EXPECT_EQ(m_window.SendMessage(WM_COMMAND, commandId), 1);
    EXPECT_EQ(m_window.SendMessage(WM_COMMAND, MAKEWPARAM(commandId, 1)), 1)
        << "an accelerator's code says nothing";
    EXPECT_EQ(TakeMessages(), "seven;seven;");
    CEdit edit;
    edit.Create(WS_CHILD, CRect(0, 0, 10, 10), &m_window, editId);
    edit.SetWindowText(L"x");
    EXPECT_EQ(TakeMessages(), "edit;");
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(editId, EN_SETFOCUS), reinterpret_cast<LPARAM>(edit.m_hWnd));
    EXPECT_EQ(TakeMessages(), "");
    CButton button;
    button.Create(L"", WS_CHILD, CRect(0, 0, 10, 10), &m_window, buttonId);
    button.SendMessage(BM_CLICK);
    EXPECT_EQ(TakeMessages(), "button;");
    EXPECT_EQ(m_window.SendMessage(WM_COMMAND, 12345), 0);
}

TEST_F(Routing, LeadsARangeOfControlsToOneOperation) {
    CStatic control;
    control.Create(L"", WS_CHILD | SS_NOTIFY, CRect(0, 0, 10, 10), &m_window, 21);
    m_window.SendMessage(WM_COMMAND, MAKEWPARAM(21, STN_CLICKED), reinterpret_cast<LPARAM>(control.m_hWnd));
    EXPECT_EQ(TakeMessages(), "range 21;");
}

TEST_F(Routing, LeadsNotificationsByIdAndCode) {
    NMHDR header = {m_window.m_hWnd, notifyId, static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(m_window.SendMessage(WM_NOTIFY, notifyId, reinterpret_cast<LPARAM>(&header)), 33);
    EXPECT_EQ(TakeMessages(), "notify -2;");
    header.code = static_cast<UINT>(NM_DBLCLK);
    EXPECT_EQ(m_window.SendMessage(WM_NOTIFY, notifyId, reinterpret_cast<LPARAM>(&header)), 0);
    EXPECT_EQ(TakeMessages(), "");
}

TEST_F(Routing, KnowsTheClassesOfItsObjects) {
    EXPECT_TRUE(m_window.IsKindOf(RUNTIME_CLASS(CDerivedWnd)));
    EXPECT_TRUE(m_window.IsKindOf(RUNTIME_CLASS(CBaseWnd)));
    EXPECT_TRUE(m_window.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(m_window.IsKindOf(RUNTIME_CLASS(CDialog)));
    EXPECT_STREQ(m_window.GetRuntimeClass()->m_lpszClassName, "CDerivedWnd");
}

// A message sent while another is being handled must not become the one that Default repeats.
class CNestingWnd : public CWnd {
public:
    UINT m_defaulted = 0;

protected:
    DECLARE_MESSAGE_MAP()
    LRESULT OnApp(WPARAM, LPARAM) {
        SendMessage(WM_APP + 1);
        m_defaulted = GetCurrentMessage()->message;
        return Default();
    }
    LRESULT OnInner(WPARAM, LPARAM) { return 0; }
};

BEGIN_MESSAGE_MAP(CNestingWnd, CWnd)
    ON_MESSAGE(WM_APP, OnApp)
    ON_MESSAGE(WM_APP + 1, OnInner)
END_MESSAGE_MAP()

TEST(Default, RepeatsTheMessageOfTheOperationThatCallsIt) {
    CNestingWnd window;
    window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    window.SendMessage(WM_APP);
    EXPECT_EQ(window.m_defaulted, static_cast<UINT>(WM_APP));
}

TEST(Owner, IsTheParentUnlessAnotherWasSet) {
    AFX_MAINTAIN_STATE2 state(AfxGetStaticModuleState());
    CWnd parent, child, owner;
    parent.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    owner.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    child.Create(L"STATIC", L"", 0, CRect(0, 0, 5, 5), &parent, 1);
    EXPECT_EQ(child.GetOwner(), &parent);
    child.SetOwner(&owner);
    EXPECT_EQ(child.GetOwner(), &owner);
    EXPECT_EQ(child.GetParent(), &parent);
    child.SetOwner(nullptr);
    EXPECT_EQ(child.GetOwner(), &parent);
}

TEST(Owner, IsForgottenWithTheWindow) {
    CWnd parent, child, owner;
    parent.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    owner.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    child.Create(L"STATIC", L"", 0, CRect(0, 0, 5, 5), &parent, 1);
    child.SetOwner(&owner);
    child.DestroyWindow();
    child.Create(L"STATIC", L"", 0, CRect(0, 0, 5, 5), &parent, 1);
    EXPECT_EQ(child.GetOwner(), &parent);
}

}  // namespace
