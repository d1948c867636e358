// The system's own dialogs.
#include <afxdlgs.h>
#include <gtest/gtest.h>

#include "tests/windows/support/ModalDriver.h"
#include "tests/windows/support/TempFolder.h"

namespace {

constexpr int redField = 706, greenField = 707, blueField = 708;  // of the system's colour dialog

class CommonDialog : public testing::Test {
protected:
    void SetUp() override {
        m_owner.CreateEx(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr);
    }
    // A step that checks the owner and presses a button.
    CModalDriver::Step Press(int button) {
        return [this, button](HWND dialog) {
            EXPECT_EQ(::GetWindow(dialog, GW_OWNER), m_owner.m_hWnd);
            PressButton(dialog, button);
        };
    }

    CWnd m_owner;
    CModalDriver m_driver;
};

TEST_F(CommonDialog, ForFilesGivesTheFullPath) {
    const CTempFolder folder;
    folder.Write(L"note.txt", "x");
    CFileDialog dialog(TRUE, nullptr, folder.Path(L"note.txt").c_str(),
                       OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, L"Texts|*.txt|All|*.*||", &m_owner);
    m_driver.Then(Press(IDOK));
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(::_wcsicmp(dialog.GetPathName(), folder.Path(L"note.txt").c_str()), 0);
    EXPECT_EQ(dialog.GetFileName(), L"note.txt");
}

TEST_F(CommonDialog, CanBeCancelled) {
    m_driver.Then(Press(IDCANCEL));
    EXPECT_EQ(CFileDialog(TRUE, nullptr, nullptr, 0, nullptr, &m_owner).DoModal(), IDCANCEL);
    m_driver.Then(Press(IDCANCEL));
    EXPECT_EQ(CColorDialog(0, 0, &m_owner).DoModal(), IDCANCEL);
    m_driver.Then(Press(IDCANCEL));
    EXPECT_EQ(CFontDialog(nullptr, CF_SCREENFONTS | CF_EFFECTS, nullptr, &m_owner).DoModal(), IDCANCEL);
    EXPECT_EQ(m_driver.StepsLeft(), 0u);
}

TEST_F(CommonDialog, ForColoursStartsFromAColourAndGivesTheChosenOne) {
    CColorDialog dialog(RGB(10, 20, 30), CC_FULLOPEN, &m_owner);
    m_driver.Then([](HWND window) {
        EXPECT_EQ(::GetDlgItemInt(window, redField, nullptr, FALSE), 10u);
        EXPECT_EQ(::GetDlgItemInt(window, greenField, nullptr, FALSE), 20u);
        EXPECT_EQ(::GetDlgItemInt(window, blueField, nullptr, FALSE), 30u);
        ::SetDlgItemInt(window, redField, 200, FALSE);
        PressButton(window, IDOK);
    });
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetColor(), RGB(200, 20, 30));
}

TEST_F(CommonDialog, ForFontsStartsFromAFontAndGivesTheChosenOne) {
    LOGFONT font = {};
    font.lfHeight = -16;
    font.lfWeight = FW_BOLD;
    ::lstrcpy(font.lfFaceName, L"Tahoma");
    CFontDialog dialog(&font, CF_SCREENFONTS | CF_EFFECTS, nullptr, &m_owner);
    m_driver.Then(Press(IDOK));
    ASSERT_EQ(dialog.DoModal(), IDOK);
    LOGFONT chosen = {};
    dialog.GetCurrentFont(&chosen);
    EXPECT_STREQ(chosen.lfFaceName, L"Tahoma");
    EXPECT_EQ(chosen.lfHeight, -16);
    EXPECT_EQ(chosen.lfWeight, FW_BOLD);
}

}  // namespace
