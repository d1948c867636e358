// Messages about a control that its parent hands back to it.
#include <afxcmn.h>
#include <gtest/gtest.h>

#include <string>

namespace {

class CAskedEdit : public CEdit {
public:
    CBrush m_brush{RGB(1, 2, 3)};
    bool m_leaveColor = false;
    std::string m_messages;

protected:
    DECLARE_MESSAGE_MAP()
    HBRUSH CtlColor(CDC* dc, UINT kind) {
        m_messages += "colour " + std::to_string(kind) + ";";
        if (m_leaveColor) {
            return nullptr;
        }
        dc->SetBkColor(RGB(1, 2, 3));
        return m_brush;
    }
    void OnChanged() { m_messages += "changed;"; }
    void OnNotification(NMHDR*, LRESULT* result) {
        m_messages += "notify;";
        *result = 9;
    }
};

BEGIN_MESSAGE_MAP(CAskedEdit, CEdit)
    ON_WM_CTLCOLOR_REFLECT()
    ON_CONTROL_REFLECT(EN_CHANGE, OnChanged)
    ON_NOTIFY_REFLECT(NM_CLICK, OnNotification)
END_MESSAGE_MAP()

class COwnDrawnStatic : public CStatic {
public:
    HDC m_drawn = nullptr;
    void PreSubclassWindow() override {
        CStatic::PreSubclassWindow();
        ModifyStyle(0, SS_OWNERDRAW);
    }
    void DrawItem(LPDRAWITEMSTRUCT item) override { m_drawn = item->hDC; }
};

class CAskingWnd : public CWnd {
public:
    std::string m_messages;
    HBRUSH m_brush = nullptr;

protected:
    DECLARE_MESSAGE_MAP()
    void OnEditChanged() { m_messages += "changed;"; }
    void OnNotification(NMHDR*, LRESULT*) { m_messages += "notify;"; }
    HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind) {
        m_messages +=
            "colour " + std::to_string(kind) + " of " + std::to_string(control->GetDlgCtrlID()) + ";";
        return m_brush != nullptr ? m_brush : CWnd::OnCtlColor(dc, control, kind);
    }
};

BEGIN_MESSAGE_MAP(CAskingWnd, CWnd)
    ON_WM_CTLCOLOR()
    ON_EN_CHANGE(5, OnEditChanged)
    ON_NOTIFY(NM_CLICK, 5, OnNotification)
END_MESSAGE_MAP()

class Reflection : public testing::Test {
protected:
    void SetUp() override {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 100, 50, nullptr, nullptr);
        m_edit.Create(WS_CHILD, CRect(0, 0, 50, 20), &m_parent, 5);
        m_parent.m_messages.clear();
        m_edit.m_messages.clear();
    }
    LRESULT AskColor(UINT message, const CWnd& control) {
        CClientDC dc(&m_parent);
        return m_parent.SendMessage(message, reinterpret_cast<WPARAM>(dc.m_hDC),
                                    reinterpret_cast<LPARAM>(control.m_hWnd));
    }

    CAskingWnd m_parent;
    CAskedEdit m_edit;
};

TEST_F(Reflection, AsksTheControlForItsColoursWhenTheParentCallsItsBase) {
    EXPECT_EQ(AskColor(WM_CTLCOLOREDIT, m_edit), reinterpret_cast<LRESULT>(m_edit.m_brush.m_hObject));
    EXPECT_EQ(m_parent.m_messages, "colour 1 of 5;");
    EXPECT_EQ(m_edit.m_messages, "colour 1;");
}

TEST_F(Reflection, LeavesTheColoursToTheParentWhenTheControlGivesNoBrush) {
    m_edit.m_leaveColor = true;
    const LRESULT brush = AskColor(WM_CTLCOLOREDIT, m_edit);
    EXPECT_EQ(m_edit.m_messages, "colour 1;");
    EXPECT_NE(brush, 0) << "the system's brush";
    EXPECT_NE(brush, reinterpret_cast<LRESULT>(m_edit.m_brush.m_hObject));
}

TEST_F(Reflection, DoesNotAskTheControlWhenTheParentDecides) {
    CBrush own(RGB(9, 9, 9));
    m_parent.m_brush = own;
    EXPECT_EQ(AskColor(WM_CTLCOLORSTATIC, m_edit), reinterpret_cast<LRESULT>(own.m_hObject));
    EXPECT_EQ(m_edit.m_messages, "");
    m_parent.m_brush = nullptr;
}

TEST_F(Reflection, OffersCommandsToTheControlFirst) {
    m_edit.SetWindowText(L"x");
    EXPECT_EQ(m_edit.m_messages, "changed;");
    EXPECT_EQ(m_parent.m_messages, "");
    CEdit plain;
    m_edit.DestroyWindow();
    plain.Create(WS_CHILD, CRect(0, 0, 50, 20), &m_parent, 5);
    plain.SetWindowText(L"x");
    EXPECT_EQ(m_parent.m_messages, "changed;");
}

TEST_F(Reflection, OffersNotificationsToTheControlFirst) {
    NMHDR header = {m_edit.m_hWnd, 5, static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(m_parent.SendMessage(WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&header)), 9);
    EXPECT_EQ(m_edit.m_messages, "notify;");
    EXPECT_EQ(m_parent.m_messages, "");
    header.hwndFrom = m_parent.m_hWnd;
    m_parent.SendMessage(WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&header));
    EXPECT_EQ(m_parent.m_messages, "notify;");
}

TEST_F(Reflection, LetsAnOwnerDrawnStaticDrawItself) {
    COwnDrawnStatic control;
    control.SubclassWindow(::CreateWindowEx(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 20, 20,
                                            m_parent.m_hWnd, nullptr, nullptr, nullptr));
    EXPECT_EQ(control.GetStyle() & SS_TYPEMASK, static_cast<DWORD>(SS_OWNERDRAW));
    m_parent.ShowWindow(SW_SHOW);
    control.Invalidate();
    control.UpdateWindow();
    EXPECT_NE(control.m_drawn, nullptr);
}

}  // namespace
