// Many cycles of opening, painting and closing leave nothing behind.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "tests/windows/afx/DialogTemplate.h"
#include "tests/windows/support/HandleCount.h"

namespace {

class CPaintedDialog : public CDialog {
public:
    explicit CPaintedDialog(const CDialogTemplate& dialogTemplate) {
        InitModalIndirect(dialogTemplate.Get());
    }

protected:
    DECLARE_MESSAGE_MAP()
    void DoDataExchange(CDataExchange* exchange) override { DDX_Control(exchange, 10, m_edit); }
    BOOL OnInitDialog() override {
        m_brush.CreateSolidBrush(RGB(1, 2, 3));
        m_font.CreatePointFont(160, L"Tahoma");
        CDialog::OnInitDialog();
        m_edit.SetFont(&m_font);
        return TRUE;
    }
    HBRUSH OnCtlColor(CDC*, CWnd*, UINT) { return m_brush; }
    void OnPaint() {
        CPaintDC dc(this);
        CBitmap bitmap;
        CDC memory;
        memory.CreateCompatibleDC(&dc);
        bitmap.CreateCompatibleBitmap(&dc, 20, 20);
        CBitmap* const oldBitmap = memory.SelectObject(&bitmap);
        CPen pen(PS_SOLID, 1, 0);
        CPen* const oldPen = memory.SelectObject(&pen);
        dc.BitBlt(0, 0, 20, 20, &memory, 0, 0, SRCCOPY);
        memory.SelectObject(oldPen);
        memory.SelectObject(oldBitmap);
        PostMessage(WM_CLOSE);
    }

private:
    CEdit m_edit;
    CBrush m_brush;
    CFont m_font;
};

BEGIN_MESSAGE_MAP(CPaintedDialog, CDialog)
    ON_WM_CTLCOLOR()
    ON_WM_PAINT()
END_MESSAGE_MAP()

void RunDialogs(int count) {
    CDialogTemplate made;
    made.Add(editClass, 10, L"", childStyle, 5, 5, 50, 12)
        .Add(buttonClass, IDCANCEL, L"", childStyle, 5, 20, 50, 12);
    for (; count > 0; --count) {
        AFX_MAINTAIN_STATE2 state(AfxGetStaticModuleState());
        CPaintedDialog dialog(made);
        ASSERT_EQ(dialog.DoModal(), IDCANCEL);
    }
}

TEST(Leaks, AreNotLeftByTwoHundredDialogs) {
    RunDialogs(3);  // what is made once
    const ProcessHoldings before = CountHoldings();
    RunDialogs(200);
    EXPECT_EQ(CountHoldings(), before);
}

class CRepaintedWnd : public CWnd {
public:
    int m_paints = 0;

protected:
    DECLARE_MESSAGE_MAP()
    void OnPaint() {
        CPaintDC dc(this);
        CBrush brush(RGB(m_paints % 256, 0, 0));
        CFont font;
        font.CreatePointFont(80, L"Tahoma");
        CFont* const oldFont = dc.SelectObject(&font);
        dc.FrameRect(&dc.m_ps.rcPaint, &brush);
        dc.DrawText(L"x", -1, &dc.m_ps.rcPaint, 0);
        dc.SelectObject(oldFont);
        ++m_paints;
    }
};

BEGIN_MESSAGE_MAP(CRepaintedWnd, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

TEST(Leaks, AreNotLeftByTenThousandPaints) {
    CRepaintedWnd window;
    window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, 0, 0, 30, 30, nullptr, nullptr);
    const auto paint = [&](int count) {
        for (; count > 0; --count) {
            window.RedrawWindow();
        }
    };
    paint(10);
    const int gdiObjects = GdiObjectCount();
    const long long blocks = HeapBlockCount();
    window.m_paints = 0;
    paint(10000);
    EXPECT_EQ(window.m_paints, 10000);
    EXPECT_EQ(GdiObjectCount(), gdiObjects);
    EXPECT_EQ(HeapBlockCount(), blocks);
}

}  // namespace
