// How a window's life reaches its object.
#include <afxwin.h>
#include <gtest/gtest.h>

#include <string>

namespace {

class CRecordingWnd : public CWnd {
public:
    std::string m_messages;
    int m_createResult = 0;
    bool m_refuse = false;

    void PreSubclassWindow() override {
        m_messages +=
            m_hWnd != nullptr && FromHandlePermanent(m_hWnd) == this ? "presubclass;" : "no window;";
    }
    void PostNcDestroy() override { m_messages += m_hWnd == nullptr ? "gone;" : "still there;"; }
    BOOL PreCreateWindow(CREATESTRUCT& create) override {
        create.lpszName = L"changed";
        return !m_refuse && CWnd::PreCreateWindow(create);
    }

protected:
    DECLARE_MESSAGE_MAP()
    BOOL OnNcCreate(LPCREATESTRUCT create) {
        m_messages += "nccreate;";
        return CWnd::OnNcCreate(create);
    }
    int OnCreate(LPCREATESTRUCT create) {
        m_messages += "create;";
        return m_createResult != 0 ? m_createResult : CWnd::OnCreate(create);
    }
    void OnDestroy() {
        m_messages += "destroy;";
        CWnd::OnDestroy();
    }
};

BEGIN_MESSAGE_MAP(CRecordingWnd, CWnd)
    ON_WM_NCCREATE()
    ON_WM_CREATE()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

TEST(WindowLife, ReachesTheMapFromTheFirstMessageToTheLast) {
    CRecordingWnd window;
    ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_EQ(window.m_messages, "presubclass;nccreate;create;");
    const HWND handle = window.m_hWnd;
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(window.m_messages, "presubclass;nccreate;create;destroy;gone;");
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    EXPECT_FALSE(window.DestroyWindow()) << "it has none any more";
}

TEST(WindowLife, ReachesTheMapForSystemClassesToo) {
    CRecordingWnd parent, child;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    ASSERT_TRUE(child.Create(L"EDIT", L"", 0, CRect(1, 2, 11, 22), &parent, 3));
    EXPECT_EQ(child.m_messages, "presubclass;nccreate;create;");
    EXPECT_EQ(child.GetDlgCtrlID(), 3);
    EXPECT_TRUE(child.GetStyle() & WS_CHILD);
    EXPECT_EQ(::GetParent(child.m_hWnd), parent.m_hWnd);
    parent.DestroyWindow();
    EXPECT_EQ(child.m_messages, "presubclass;nccreate;create;destroy;gone;") << "it ends with its parent";
    EXPECT_EQ(child.m_hWnd, nullptr);
}

TEST(WindowLife, EndsWhenCreationIsRefused) {
    CRecordingWnd window;
    window.m_createResult = -1;
    EXPECT_FALSE(window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_TRUE(window.m_messages.ends_with("gone;")) << window.m_messages;
}

TEST(WindowLife, EndsWhenThereIsNoSuchClass) {
    CRecordingWnd window;
    EXPECT_FALSE(window.CreateEx(0, L"No such class", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_EQ(window.m_messages, "gone;");
    CRecordingWnd refused;
    refused.m_refuse = true;
    EXPECT_FALSE(refused.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_EQ(refused.m_messages, "gone;");
}

TEST(WindowLife, MayChangeWhatItIsCreatedWith) {
    CRecordingWnd window;
    window.CreateEx(0, nullptr, L"title", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    CString title;
    window.GetWindowText(title);
    EXPECT_EQ(title, L"changed");
}

TEST(WindowLife, TakesOverAWindowThatExistsAndGivesItBack) {
    const HWND edit =
        ::CreateWindowEx(0, L"EDIT", L"text", WS_POPUP, 0, 0, 50, 20, nullptr, nullptr, nullptr, nullptr);
    const auto before = ::GetWindowLongPtr(edit, GWLP_WNDPROC);
    CRecordingWnd window;
    ASSERT_TRUE(window.SubclassWindow(edit));
    EXPECT_EQ(window.m_messages, "presubclass;");
    EXPECT_NE(::GetWindowLongPtr(edit, GWLP_WNDPROC), before);
    EXPECT_EQ(::GetWindowTextLength(edit), 4) << "the edit still answers what the object leaves alone";
    EXPECT_EQ(window.UnsubclassWindow(), edit);
    EXPECT_EQ(::GetWindowLongPtr(edit, GWLP_WNDPROC), before);
    EXPECT_EQ(window.m_hWnd, nullptr);
    ::DestroyWindow(edit);
    EXPECT_EQ(window.m_messages, "presubclass;");
}

TEST(WindowLife, SubclassesADialogsControlById) {
    CRecordingWnd parent, control;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    EXPECT_FALSE(control.SubclassDlgItem(3, &parent));
    ::CreateWindowEx(0, L"STATIC", L"", WS_CHILD, 0, 0, 5, 5, parent.m_hWnd, reinterpret_cast<HMENU>(3),
                     nullptr, nullptr);
    EXPECT_TRUE(control.SubclassDlgItem(3, &parent));
    EXPECT_EQ(control.m_hWnd, ::GetDlgItem(parent.m_hWnd, 3));
    EXPECT_EQ(parent.GetDlgItem(3), &control);
}

class CSelfDeletingWnd : public CWnd {
public:
    explicit CSelfDeletingWnd(bool& deleted) : m_deleted(deleted) {}
    ~CSelfDeletingWnd() override { m_deleted = true; }
    void PostNcDestroy() override { delete this; }

private:
    bool& m_deleted;
};

TEST(WindowLife, MayEndItsObjectLast) {
    bool deleted = false;
    auto* const window = new CSelfDeletingWnd(deleted);
    window->CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    ::DestroyWindow(window->m_hWnd);
    EXPECT_TRUE(deleted);
}

TEST(Window, ChangesItsStyle) {
    CWnd window;
    window.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    EXPECT_TRUE(window.ModifyStyle(0, WS_CLIPCHILDREN));
    EXPECT_TRUE(window.GetStyle() & WS_CLIPCHILDREN);
    EXPECT_FALSE(window.ModifyStyle(0, WS_CLIPCHILDREN)) << "nothing to change";
    EXPECT_TRUE(window.ModifyStyle(WS_CLIPCHILDREN, 0));
    EXPECT_TRUE(window.ModifyStyle(0, WS_BORDER, SWP_FRAMECHANGED));
    CRect client;
    window.GetClientRect(client);
    EXPECT_EQ(client.Width(), 10 - 2 * ::GetSystemMetrics(SM_CXBORDER));
}

TEST(Window, CentresAPopUpOverItsOwnerButInsideTheWorkArea) {
    CWnd owner, popup;
    owner.CreateEx(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 200, 200, 400, 300, nullptr, nullptr);
    popup.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 100, 50, owner.m_hWnd, nullptr);
    CRect rect;
    popup.CenterWindow();
    popup.GetWindowRect(rect);
    EXPECT_TRUE(rect.TopLeft() == CPoint(350, 325));
    owner.SetWindowPos(nullptr, -390, -290, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    popup.CenterWindow();
    popup.GetWindowRect(rect);
    EXPECT_TRUE(rect.TopLeft() == CPoint(0, 0));
}

TEST(Window, ChangesItsZOrder) {
    CWnd window;
    window.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
    EXPECT_TRUE(window.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
    EXPECT_TRUE(window.GetExStyle() & WS_EX_TOPMOST);
    EXPECT_TRUE(window.SetWindowPos(&CWnd::wndNoTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
    EXPECT_FALSE(window.GetExStyle() & WS_EX_TOPMOST);
    EXPECT_TRUE(window.SetWindowPos(&CWnd::wndTop, 100, 5, 0, 0, SWP_NOSIZE));
}

TEST(ScrollBar, KeepsItsRangePageAndPosition) {
    CWnd parent;
    parent.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr);
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_CHILD | SBS_VERT, CRect(0, 0, 16, 100), &parent, 1000));
    SCROLLINFO info = {};
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMax = 500;
    info.nPage = 100;
    info.nPos = 450;
    bar.SetScrollInfo(&info);
    EXPECT_EQ(bar.GetScrollPos(), 401) << "the last page ends the range";
    SCROLLINFO read = {};
    ASSERT_TRUE(bar.GetScrollInfo(&read));
    EXPECT_EQ(read.nMax, 500);
    EXPECT_EQ(read.nPage, 100u);
}

TEST(Edit, SelectsText) {
    CWnd parent;
    parent.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr);
    CEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD, CRect(0, 0, 80, 20), &parent, 1));
    edit.SetWindowText(L"abcd");
    edit.SetSel(1, 3);
    EXPECT_EQ(edit.SendMessage(EM_GETSEL), MAKELRESULT(1, 3));
}

class CScrolledEdit : public CEdit {
public:
    int m_scrolls = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        m_scrolls += message == EM_SCROLLCARET ? 1 : 0;
        return CEdit::WindowProc(message, wParam, lParam);
    }
};

// The message is looked at, not the text: some systems scroll whenever they select.
TEST(Edit, ScrollsToTheSelectionUnlessToldOtherwise) {
    CWnd parent;
    parent.CreateEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr);
    CScrolledEdit edit;
    ASSERT_TRUE(edit.Create(WS_CHILD, CRect(0, 0, 80, 20), &parent, 1));
    edit.SetWindowText(L"abcd");
    edit.SetSel(1, 3, TRUE);
    EXPECT_EQ(edit.m_scrolls, 0);
    edit.SetSel(0, 2);
    EXPECT_EQ(edit.m_scrolls, 1);
}

}  // namespace
