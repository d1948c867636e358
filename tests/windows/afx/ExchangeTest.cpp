// Values that go between controls and members.
#include <afxcmn.h>
#include <gtest/gtest.h>

#include "tests/windows/afx/DialogTemplate.h"

namespace {

class CValuesDialog : public CDialog {
public:
    CString m_text = L"text";
    int m_check = 2, m_radio = 1, m_scroll = 30, m_slider = 40;
    CWnd m_scrollBar, m_trackBar;

    void MakeControls() {
        INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_BAR_CLASSES};
        ::InitCommonControlsEx(&classes);
        CDialogTemplate made;
        made.Add(editClass, 10, L"old", childStyle, 0, 0, 50, 12)
            .Add(buttonClass, 11, L"", childStyle | BS_AUTO3STATE, 0, 15, 50, 12)
            .Add(buttonClass, 12, L"", childStyle | BS_AUTORADIOBUTTON | WS_GROUP, 0, 30, 50, 12)
            .Add(buttonClass, 13, L"", childStyle | BS_AUTORADIOBUTTON, 0, 45, 50, 12)
            .Add(buttonClass, 14, L"", childStyle | BS_AUTORADIOBUTTON | WS_GROUP, 0, 60, 50, 12);
        ASSERT_TRUE(CreateIndirect(made.Get()));
        m_scrollBar.Create(L"SCROLLBAR", L"", SBS_HORZ, CRect(0, 0, 100, 20), this, 15);
        ::SetScrollRange(m_scrollBar.m_hWnd, SB_CTL, 0, 100, FALSE);
        m_trackBar.Create(TRACKBAR_CLASS, L"", 0, CRect(0, 0, 100, 20), this, 16);
        m_hasControls = true;
    }

protected:
    BOOL OnInitDialog() override { return TRUE; }
    void DoDataExchange(CDataExchange* exchange) override {
        if (!m_hasControls) {
            return;
        }
        DDX_Text(exchange, 10, m_text);
        DDX_Check(exchange, 11, m_check);
        DDX_Radio(exchange, 12, m_radio);
        DDX_Scroll(exchange, 15, m_scroll);
        DDX_Slider(exchange, 16, m_slider);
    }

private:
    bool m_hasControls = false;
};

class Exchange : public testing::Test {
protected:
    void SetUp() override { m_dialog.MakeControls(); }
    CValuesDialog m_dialog;
};

TEST_F(Exchange, PutsTheMembersIntoTheControls) {
    ASSERT_TRUE(m_dialog.UpdateData(FALSE));
    CString text;
    m_dialog.GetDlgItem(10)->GetWindowText(text);
    EXPECT_EQ(text, L"text");
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(11), static_cast<UINT>(BST_INDETERMINATE));
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(12), 0u);
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(13), 1u);
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(14), 0u) << "it belongs to the next group";
    EXPECT_EQ(m_dialog.m_scrollBar.GetScrollPos(SB_CTL), 30);
    EXPECT_EQ(m_dialog.m_trackBar.SendMessage(TBM_GETPOS), 40);
}

TEST_F(Exchange, TakesTheMembersFromTheControls) {
    m_dialog.GetDlgItem(10)->SetWindowText(L"typed \u20AC");
    m_dialog.CheckDlgButton(11, BST_CHECKED);
    m_dialog.CheckDlgButton(12, BST_CHECKED);
    m_dialog.CheckDlgButton(14, BST_CHECKED);
    m_dialog.m_scrollBar.SetScrollPos(SB_CTL, 70);
    m_dialog.m_trackBar.SendMessage(TBM_SETPOS, TRUE, 80);
    ASSERT_TRUE(m_dialog.UpdateData(TRUE));
    EXPECT_EQ(m_dialog.m_text, L"typed \u20AC");
    EXPECT_EQ(m_dialog.m_check, 1);
    EXPECT_EQ(m_dialog.m_radio, 0);
    EXPECT_EQ(m_dialog.m_scroll, 70);
    EXPECT_EQ(m_dialog.m_slider, 80);
}

TEST_F(Exchange, KnowsAGroupWithoutAChosenButton) {
    ASSERT_TRUE(m_dialog.UpdateData(TRUE));
    EXPECT_EQ(m_dialog.m_radio, -1);
    m_dialog.m_radio = 0;
    ASSERT_TRUE(m_dialog.UpdateData(FALSE));
    m_dialog.m_radio = -1;
    ASSERT_TRUE(m_dialog.UpdateData(FALSE));
    EXPECT_EQ(m_dialog.IsDlgButtonChecked(12), 0u);
}

TEST_F(Exchange, UnchecksACheckBoxForAStateThatIsNone) {
    for (const int state : {-1, 3, 1000}) {
        m_dialog.CheckDlgButton(11, BST_CHECKED);
        m_dialog.m_check = state;
        ASSERT_TRUE(m_dialog.UpdateData(FALSE));
        EXPECT_EQ(m_dialog.IsDlgButtonChecked(11), static_cast<UINT>(BST_UNCHECKED)) << state;
    }
}

TEST_F(Exchange, LeavesTheSelectionAloneWhenTheTextIsEqual) {
    m_dialog.UpdateData(FALSE);
    m_dialog.SendDlgItemMessage(10, EM_SETSEL, 1, 3);
    m_dialog.UpdateData(FALSE);
    EXPECT_EQ(m_dialog.SendDlgItemMessage(10, EM_GETSEL), MAKELONG(1, 3));
}

// The notifications that come while it runs would find the members half exchanged.
class CListeningDialog : public CDialog {
public:
    void Fill() {
        CDialogTemplate made;
        made.Add(editClass, 10, L"", childStyle, 0, 0, 50, 12);
        ASSERT_TRUE(CreateIndirect(made.Get()));
    }
    int m_changes = 0, m_notifications = 0;

protected:
    DECLARE_MESSAGE_MAP()
    BOOL OnInitDialog() override { return TRUE; }
    void DoDataExchange(CDataExchange*) override {
        GetDlgItem(10)->SetWindowText(L"new");
        NMHDR header = {GetDlgItem(10)->m_hWnd, 10, 7u};
        SendMessage(WM_NOTIFY, 10, reinterpret_cast<LPARAM>(&header));
    }
    void OnChange() { ++m_changes; }
    void OnNotification(NMHDR*, LRESULT*) { ++m_notifications; }
};

BEGIN_MESSAGE_MAP(CListeningDialog, CDialog)
    ON_EN_CHANGE(10, &CListeningDialog::OnChange)
    ON_NOTIFY(7, 10, &CListeningDialog::OnNotification)
END_MESSAGE_MAP()

TEST(ExchangeNotifications, AreLockedOutWhileItRuns) {
    CListeningDialog dialog;
    dialog.Fill();
    ASSERT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(dialog.m_changes, 0);
    EXPECT_EQ(dialog.m_notifications, 0);
    dialog.GetDlgItem(10)->SetWindowText(L"newer");
    EXPECT_EQ(dialog.m_changes, 1);
}

}  // namespace
