#include "tests/windows/propgrid/GridInputFixture.h"

#include <sstream>
#include <utility>

#include "propgrid/editors/PropertyGridCombo.h"
#include "propgrid/editors/PropertyGridMonthCalCtrl.h"

bool CScriptedItem::OnLButtonDown(CRect area, CPoint point) {
    Note("down", area, point);
    return capturesMouse;
}

bool CScriptedItem::SetStringValue(std::wstring newText) {
    text = newText;
    calls.push_back("text ");
    for (const wchar_t character : newText) {
        calls.back() += static_cast<char>(character);
    }
    if (during) {
        during();
    }
    return takesText;
}

bool CScriptedItem::OnButtonClicked() {
    calls.emplace_back("button");
    if (during) {
        during();
    }
    return buttonChanges;
}

void CScriptedItem::Note(const char* what, CRect area, CPoint point) {
    std::ostringstream call;
    call << what << ' ' << point.x << ' ' << point.y;
    calls.push_back(call.str());
    rect = area;
    if (during) {
        during();
    }
}

BEGIN_MESSAGE_MAP(CListeningOwner, CWnd)
    ON_MESSAGE(WM_GRID_ITEM_CHANGED, &CListeningOwner::OnItemChanged)
END_MESSAGE_MAP()

CListeningOwner::CListeningOwner() {
    CreateEx(0, AfxRegisterWndClass(0), L"owner", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
}

LRESULT CListeningOwner::OnItemChanged(WPARAM item, LPARAM /*zero*/) {
    onChanged(static_cast<UINT>(item));
    return 0;
}

GridInputTest::GridInputTest() {
    grid.SetDisplayMode(CPropertyGrid::DM_FLAT);
    section = grid.AddSection(L"Section");
    parent.SetActiveWindow();
    grid.SetFocus();
    PumpMessages();
}

void GridInputTest::ClickOn(CPoint point) {
    Press(point);
    Release(point);
}

void GridInputTest::DoubleClickOn(CPoint point) {
    ClickOn(point);
    SendMouse(WM_LBUTTONDBLCLK, point);
    Release(point);
}

void GridInputTest::Scroll(UINT code, int position) {
    grid.SendMessage(WM_VSCROLL, MAKEWPARAM(code, static_cast<WORD>(position)),
                     reinterpret_cast<LPARAM>(ScrollBar()->m_hWnd));
}

std::pair<CRect, CRect> GridInputTest::RectsOf(UINT item) {
    grid.UpdateWindow();
    std::pair<CRect, CRect> rects;
    EXPECT_TRUE(grid.GetItemRects(item, rects.first, rects.second));
    return rects;
}

CPoint GridInputTest::ButtonOf(UINT item) {
    const CRect name = RectsOf(item).first;
    const int right = ScrollBarShows() ? 300 - ::GetSystemMetrics(SM_CXVSCROLL) : 300;
    return {right - RowHeight() / 2, name.CenterPoint().y};
}

CPoint GridInputTest::HeaderOf(UINT id) {
    grid.UpdateWindow();
    CRect glyph, header;
    EXPECT_TRUE(grid.GetSectionRects(id, glyph, header));
    return header.CenterPoint();
}

CPoint GridInputTest::GlyphOf(UINT id) {
    grid.UpdateWindow();
    CRect glyph, header;
    EXPECT_TRUE(grid.GetSectionRects(id, glyph, header));
    return glyph.CenterPoint();
}

namespace {

template <class T>
HWND FindPopUp() {
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) CALLBACK -> BOOL {
            if (dynamic_cast<T*>(CWnd::FromHandlePermanent(window)) == nullptr) {
                return TRUE;
            }
            *reinterpret_cast<HWND*>(result) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

}  // namespace

HWND GridInputTest::List() {
    return FindPopUp<CPropertyGridCombo>();
}

HWND GridInputTest::Calendar() {
    return FindPopUp<CPropertyGridMonthCalCtrl>();
}

std::wstring GridInputTest::TextOf(HWND window) {
    std::wstring text(static_cast<size_t>(::GetWindowTextLength(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(::GetWindowText(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void GridInputTest::Enter(const std::wstring& typed) {
    const HWND edit = Edit();
    ASSERT_NE(edit, nullptr);
    ::SetWindowText(edit, typed.c_str());
    ::SendMessage(edit, WM_CHAR, VK_RETURN, 1);
}

void GridInputTest::TypeInEdit(const std::wstring& typed) {
    const HWND edit = Edit();
    ASSERT_NE(edit, nullptr);
    if (!typed.empty() && typed.front() >= L' ') {
        ::SendMessage(edit, EM_SETSEL, 0, -1);
    }
    for (const wchar_t character : typed) {
        ::SendMessage(edit, WM_CHAR, character, 1);
    }
}

void GridInputTest::ExpectNoEditorLeft() {
    EXPECT_EQ(EditorCount(), 0);
    EXPECT_FALSE(grid.IsEditing());
}

UINT GridInputTest::AddAllKinds(const std::wstring& sectionName) {
    LOGFONT font = {};
    font.lfHeight = -16;
    ::lstrcpy(font.lfFaceName, L"Tahoma");
    const COleDateTime date(2024, 2, 14, 12, 30, 15);
    const UINT s = grid.AddSection(sectionName);
    const UINT first = grid.AddCustomItem(s, L"Custom", &custom);
    grid.AddStringItem(s, L"String", L"text");
    grid.AddTextItem(s, L"Text", L"one\r\ntwo");
    grid.AddIntegerItem(s, L"Integer", 5, L"%03d");
    grid.AddDoubleItem(s, L"Double", 12.5, L"%.3f");
    grid.AddComboItem(s, L"Combo", {L"a", L"b", L"c"}, 1);
    grid.AddBooleanItem(s, L"Boolean", true);
    grid.AddDateItem(s, L"Date", date);
    grid.AddDateTimeItem(s, L"DateTime", date);
    grid.AddFileItem(s, L"File", L"C:\\none.txt", L"All|*.*||");
    grid.AddFolderItem(s, L"Folder", L"C:\\windows", L"Where?");
    grid.AddColorItem(s, L"Color", RGB(10, 20, 30));
    grid.AddFontItem(s, L"Font", font);
    return first;
}
