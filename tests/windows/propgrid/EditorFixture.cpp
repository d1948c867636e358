#include "tests/windows/propgrid/EditorFixture.h"

#include <utility>

#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/ModalDriver.h"
#include "tests/windows/support/Pixels.h"

std::ostream& operator<<(std::ostream& out, const Report& report) {
    return out << "message " << report.message << ", index " << report.index << ", text "
               << testing::PrintToString(report.text.substr(0, 200));
}

BEGIN_MESSAGE_MAP(CEditorGrid, CPropertyGrid)
    ON_MESSAGE(WM_GRID_CHOICE_MADE, &CEditorGrid::OnChoiceMade)
    ON_MESSAGE(WM_GRID_EDIT_DONE, &CEditorGrid::OnEditDone)
    ON_MESSAGE(WM_GRID_DATE_CHOSEN, &CEditorGrid::OnDateChosen)
    ON_MESSAGE(WM_GETFONT, &CEditorGrid::OnAskedForFont)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

LRESULT CEditorGrid::OnChoiceMade(WPARAM index, LPARAM zero) {
    EXPECT_EQ(zero, 0);
    Take({WM_GRID_CHOICE_MADE, static_cast<int>(static_cast<INT_PTR>(index)), {}});
    return 0;
}

LRESULT CEditorGrid::OnEditDone(WPARAM text, LPARAM zero) {
    EXPECT_EQ(zero, 0);
    Take({WM_GRID_EDIT_DONE, 0, reinterpret_cast<const wchar_t*>(text)});
    return 0;
}

LRESULT CEditorGrid::OnDateChosen(WPARAM alsoZero, LPARAM zero) {
    EXPECT_EQ(alsoZero, 0U);
    EXPECT_EQ(zero, 0);
    Take({WM_GRID_DATE_CHOSEN, 0, {}});
    return 0;
}

LRESULT CEditorGrid::OnAskedForFont(WPARAM, LPARAM) {
    return font != nullptr ? reinterpret_cast<LRESULT>(font->GetSafeHandle()) : 0;
}

void CEditorGrid::OnDestroy() {
    CloseEditor();
    CPropertyGrid::OnDestroy();
}

void CEditorGrid::Take(const Report& report) {
    reports.push_back(report);
    if (beforeClosing) {
        beforeClosing();
    }
    if (!keepsEditor) {
        CloseEditor();
    }
}

// Clears the pointer first: destroying the window may send a message about its end.
void CEditorGrid::CloseEditor() {
    const std::unique_ptr<CWnd> closing = std::move(editor);
    if (closing != nullptr && closing->m_hWnd != nullptr) {
        closing->DestroyWindow();
    }
}

EditorTest::EditorTest() {
    const LPCTSTR windowClass = AfxRegisterWndClass(0);
    EXPECT_TRUE(grid.Create(windowClass, L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 310, 210), &parent, 100));
    EXPECT_TRUE(
        sibling.Create(windowClass, L"", WS_CHILD | WS_VISIBLE, CRect(320, 10, 420, 110), &parent, 101));
    parent.SetActiveWindow();
    ::SetFocus(grid.m_hWnd);
}

EditorTest::~EditorTest() {
    grid.beforeClosing = nullptr;
    grid.CloseEditor();
}

void EditorTest::ClickOn(const std::function<HWND()>& open, const std::function<POINT(HWND editor)>& point) {
    for (int tries = 0; tries < 20 && grid.reports.empty(); ++tries) {
        grid.CloseEditor();
        const HWND editor = open();
        PumpMessages();
        if (!::IsWindow(editor)) {
            continue;
        }
        Click(editor, point(editor));
        PumpUntil([&] { return !::IsWindow(editor); });
    }
}

namespace {

void SetKey(int key, BYTE state) {
    BYTE keys[256] = {};
    ::GetKeyboardState(keys);
    keys[key] = state;
    ::SetKeyboardState(keys);
}

constexpr UINT WM_SETTLED = WM_APP;

}  // namespace

CKeyHeldDown::CKeyHeldDown(int key) : m_key(key) {
    SetKey(key, 0x80);
}

CKeyHeldDown::~CKeyHeldDown() {
    SetKey(m_key, 0);
}

BEGIN_MESSAGE_MAP(CEditorDialog, CDialog)
    ON_BN_CLICKED(ID_MNEMONIC, &CEditorDialog::OnMnemonic)
    ON_MESSAGE(WM_SETTLED, &CEditorDialog::OnSettled)
END_MESSAGE_MAP()

void CEditorDialog::Run(std::function<void()> act) {
    // A template without controls, and no menu, class or title after it.
    struct {
        DLGTEMPLATE dialog;
        WORD noMenu = 0, standardClass = 0, noTitle = 0;
    } dialogTemplate = {{WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_CENTER, 0, 0, 0, 0, 240, 160}};
    ASSERT_TRUE(InitModalIndirect(&dialogTemplate.dialog));
    CModalDriver driver;
    driver.Then([&](HWND) {
        act();
        // Handling one posted message may post another.
        PostMessage(WM_SETTLED, 5);
    });
    EXPECT_EQ(DoModal(), IDABORT);
    EXPECT_EQ(driver.StepsLeft(), 0U);
}

BOOL CEditorDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    m_ok.Create(L"OK", style | BS_DEFPUSHBUTTON, CRect(10, 220, 90, 245), this, IDOK);
    m_cancel.Create(L"Cancel", style, CRect(100, 220, 180, 245), this, IDCANCEL);
    m_mnemonic.Create(L"&Alpha", style, CRect(190, 220, 270, 245), this, ID_MNEMONIC);
    grid.Create(AfxRegisterWndClass(0), L"", style, CRect(10, 10, 310, 210), this, 100);
    SendMessage(DM_SETDEFID, IDOK);
    grid.SetFocus();
    return FALSE;
}

LRESULT CEditorDialog::OnSettled(WPARAM roundsLeft, LPARAM) {
    if (roundsLeft > 0) {
        PostMessage(WM_SETTLED, roundsLeft - 1);
        return 0;
    }
    gridHadFocus = ::GetFocus() == grid.m_hWnd;
    editorWasOpen = grid.editor != nullptr && grid.editor->m_hWnd != nullptr;
    grid.CloseEditor();
    EndDialog(IDABORT);
    return 0;
}
