// Which font a dialog and its controls get.
#include "tests/windows/dyndlg/DynDialogFixture.h"
#include "tests/windows/support/HandleCount.h"

namespace {

class DynDialogFont : public DynDialog {
protected:
    DynDialogFont() {
        const LOGFONT own = MakeLogFont(L"Tahoma", 11);
        const LOGFONT parents = MakeLogFont(L"Arial", 12);
        const LOGFONT mains = MakeLogFont(L"Courier New", 14);
        m_own.CreateFontIndirect(&own);
        m_parents.CreateFontIndirect(&parents);
        m_mains.CreateFontIndirect(&mains);
    }

    // Runs the dialog with one static; `look` sees both windows.
    void Run(CTestDialog& dialog, std::function<void(HWND dialog, HWND control)> look) {
        const UINT id = dialog.AddDlgControl(L"STATIC", L"text", plain, 0, nullptr, nullptr, 0);
        RunWithOk(dialog, [&](HWND window) { look(window, ::GetDlgItem(window, static_cast<int>(id))); });
    }

    CFont m_own, m_parents, m_mains;
};

// The dialog's font is of this face, and its height is that of a font of `points` points.
void ExpectTemplateFont(HWND dialog, const wchar_t* face, int points) {
    const HDC screen = ::GetDC(nullptr);
    const int height = -::MulDiv(points, ::GetDeviceCaps(screen, LOGPIXELSY), 72);
    ::ReleaseDC(nullptr, screen);
    const LOGFONT font = FontOf(dialog);
    EXPECT_STREQ(font.lfFaceName, face);
    EXPECT_EQ(font.lfHeight, height);
}

TEST_F(DynDialogFont, IsTheOneThatWasSetForDialogAndControls) {
    m_parent.font = m_parents;
    CTestDialog dialog(&m_parent);
    dialog.SetFont(&m_own);
    Run(dialog, [this](HWND window, HWND control) {
        ExpectTemplateFont(window, L"Tahoma", 11);
        EXPECT_EQ(::SendMessage(control, WM_GETFONT, 0, 0), reinterpret_cast<LRESULT>(m_own.GetSafeHandle()));
    });
    EXPECT_EQ(dialog.m_fontSize, 11);
}

TEST_F(DynDialogFont, IsTheParentsForTheDialogWhenNoneWasSet) {
    m_parent.font = m_parents;
    CTestDialog dialog(&m_parent);
    Run(dialog, [](HWND window, HWND control) {
        ExpectTemplateFont(window, L"Arial", 12);
        // The controls do not share it.
        EXPECT_STREQ(FontOf(control).lfFaceName, L"MS Sans Serif");
        EXPECT_EQ(FontOf(control).lfHeight, 8);
    });
}

TEST_F(DynDialogFont, IsTheParentsWhenTheMainWindowHasOneToo) {
    m_parent.font = m_parents;
    CParentWindow mainWindow(m_mains);
    CWinApp application;
    application.m_pMainWnd = &mainWindow;
    CTestDialog dialog(&m_parent);
    Run(dialog, [](HWND window, HWND) { ExpectTemplateFont(window, L"Arial", 12); });
}

TEST_F(DynDialogFont, IsTheMainWindowsWhenTheParentHasNone) {
    CParentWindow mainWindow(m_mains);
    CWinApp application;
    application.m_pMainWnd = &mainWindow;
    CTestDialog dialog(&m_parent);
    Run(dialog, [](HWND window, HWND) { ExpectTemplateFont(window, L"Courier New", 14); });
}

TEST_F(DynDialogFont, IsTheMainWindowsWithoutAParent) {
    CParentWindow mainWindow(m_mains);
    CWinApp application;
    application.m_pMainWnd = &mainWindow;
    CTestDialog dialog(nullptr);
    Run(dialog, [](HWND window, HWND) { ExpectTemplateFont(window, L"Courier New", 14); });
}

TEST_F(DynDialogFont, IsMsSansSerifOfEightPointsWhenThereIsNoneAtAll) {
    CTestDialog dialog(&m_parent);
    Run(dialog, [](HWND window, HWND control) {
        ExpectTemplateFont(window, L"MS Sans Serif", 8);
        EXPECT_STREQ(FontOf(control).lfFaceName, L"MS Sans Serif");
        EXPECT_EQ(FontOf(control).lfHeight, 8);
    });
    EXPECT_EQ(dialog.m_fontSize, 8);
}

TEST_F(DynDialogFont, IsPassedOverWhenTheObjectHasNoFont) {
    CFont empty;
    m_parent.font = m_parents;
    CTestDialog dialog(&m_parent);
    dialog.SetFont(&empty);
    Run(dialog, [](HWND window, HWND) { ExpectTemplateFont(window, L"Arial", 12); });
}

TEST_F(DynDialogFont, GivesTheLowSixteenBitsOfItsHeightAsPointSize) {
    for (const LONG height : {-13L, -11L, 9L}) {
        CFont font;
        const LOGFONT description = MakeLogFont(L"Tahoma", height);
        font.CreateFontIndirect(&description);
        CTestDialog dialog(&m_parent);
        dialog.m_modeless = true;
        dialog.SetFont(&font);
        dialog.SetWindowTitle(L"A");
        ASSERT_EQ(dialog.DoModal(), TRUE);
        const auto expected = static_cast<WORD>(height);
        EXPECT_EQ(dialog.m_fontSize, expected);
        // After the header of 22 bytes and the caption's two units.
        ASSERT_GT(dialog.modelessTemplate.size(), 28U);
        EXPECT_EQ(std::to_integer<unsigned>(dialog.modelessTemplate[26]), LOBYTE(expected));
        EXPECT_EQ(std::to_integer<unsigned>(dialog.modelessTemplate[27]), HIBYTE(expected));
    }
}

TEST_F(DynDialogFont, KeepsASizeThatWasChosen) {
    CTestDialog dialog(&m_parent);
    dialog.SetFont(&m_own);
    dialog.m_fontSize = 20;
    Run(dialog, [](HWND window, HWND) { ExpectTemplateFont(window, L"Tahoma", 20); });
}

TEST_F(DynDialogFont, BelongsToTheCallerWhenItWasSet) {
    {
        CTestDialog dialog(&m_parent);
        dialog.SetFont(&m_own);
        Run(dialog, [](HWND, HWND) {});
    }
    EXPECT_EQ(::GetObjectType(m_own.GetSafeHandle()), static_cast<DWORD>(OBJ_FONT));
}

TEST_F(DynDialogFont, IsDeletedWithTheDialogThatMadeIt) {
    HGDIOBJ made = nullptr;
    {
        CTestDialog dialog(&m_parent);
        Run(dialog, [&](HWND, HWND control) {
            made = reinterpret_cast<HGDIOBJ>(::SendMessage(control, WM_GETFONT, 0, 0));
        });
        EXPECT_EQ(::GetObjectType(made), static_cast<DWORD>(OBJ_FONT));
    }
    EXPECT_EQ(::GetObjectType(made), 0U);
}

TEST_F(DynDialogFont, WithoutAFaceNameDoesNotHinderTheDialog) {
    CFont font;
    const LOGFONT nameless = MakeLogFont(L"", 10);
    font.CreateFontIndirect(&nameless);
    CTestDialog dialog(&m_parent);
    dialog.SetFont(&font);
    EXPECT_EQ(RunWithOk(dialog), IDOK);
}

}  // namespace
