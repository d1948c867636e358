// A control that is named by a ProgID, hosted for real: the system's web browser control, which every system
// has.
#include "tests/windows/dyndlg/DynDialogFixture.h"
#include "tests/windows/support/HandleCount.h"

namespace {

TEST_F(DynDialog, HostsAnActiveXControlInItsRectangle) {
    CTestDialog dialog(&m_parent);
    const CRect rect(10, 10, 150, 100);
    const UINT id =
        dialog.AddDlgControl(L"Shell.Explorer.2", L"caption", plain, WS_EX_CLIENTEDGE, &rect, nullptr, 0);
    dialog.beforeInit = [&] {
        EXPECT_EQ(dialog.GetItem(0)->m_hWnd, nullptr) << "created before it can be placed";
    };
    EXPECT_EQ(RunWithOk(dialog,
                        [&](HWND window) {
                            const HWND control = ::GetDlgItem(window, static_cast<int>(id));
                            ASSERT_NE(control, nullptr);
                            EXPECT_EQ(dialog.GetItem(0)->m_hWnd, control);
                            EXPECT_EQ(ClientRectOf(control), ToPixels(window, rect));
                            EXPECT_EQ(TextOf(control), L"caption");
                            EXPECT_NE(::GetWindowLong(control, GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
                            const HWND browser = ::GetWindow(control, GW_CHILD);
                            ASSERT_NE(browser, nullptr);
                            CRect client;
                            ::GetClientRect(control, &client);
                            EXPECT_EQ(ClientRectOf(browser), client);
                        }),
              IDOK);
    EXPECT_EQ(dialog.GetItem(0)->m_hWnd, nullptr);
}

TEST_F(DynDialog, ReleasesAnActiveXControlWithItsWindow) {
    const auto run = [this] {
        CDynDialogEx dialog(&m_parent);
        dialog.AddDlgControl(L"Shell.Explorer.2", L"", plain, 0, nullptr, nullptr, 0);
        RunWithOk(dialog);
        ForgetSteps();
    };
    run();
    const int windows = WindowCount();
    const long long blocks = HeapBlockCount();
    for (int cycle = 0; cycle < 10; ++cycle) {
        run();
    }
    EXPECT_EQ(WindowCount(), windows);
    EXPECT_EQ(HeapBlockCount(), blocks);
}

TEST_F(DynDialog, TakesAnUnknownNameForAnActiveXControlThatDoesNotExist) {
    CDynDialogEx dialog(&m_parent);
    int data = 5;
    const UINT id = dialog.AddDlgControl(L"Button", L"", tabbed, 0, nullptr, &data, 0);
    dialog.AddDlgControl(L"", L"", tabbed, 0, nullptr, nullptr, 0);
    m_driver->ThenPressOk();
    m_driver->ThenPressOk();
    EXPECT_EQ(
        RunWithOk(dialog,
                  [id](HWND window) { EXPECT_EQ(::GetDlgItem(window, static_cast<int>(id)), nullptr); }),
        IDOK);
    ASSERT_EQ(m_driver->messages.size(), 2U);
    EXPECT_EQ(m_driver->messages[0].text, L"Failed SetWindowPos for control Button.");
    EXPECT_EQ(m_driver->messages[1].text, L"Failed SetWindowPos for control .");
    EXPECT_EQ(data, 5);
}

}  // namespace
