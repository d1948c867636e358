// Controls in the dialog's template: Windows creates them, derived classes subclass them.
#include "dyndlg/DialogTemplate.h"

#include "tests/windows/dyndlg/DynDialogFixture.h"

using namespace tavrin::dyndlg;

namespace {

class CPaintedStatic : public CStatic {
public:
    int drawn = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
};

TEST_F(DynDialog, HasTheSubclassedControlsInItsTemplate) {
    CTestDialog dialog(&m_parent);
    const wchar_t* const names[] = {L"BUTTON", L"EDIT", L"STATIC", L"LISTBOX", L"SCROLLBAR", L"COMBOBOX"};
    std::vector<UINT> ids;
    int top = 10;
    for (const wchar_t* name : names) {
        const CRect rect(20, top, 90, top + 14);
        ids.push_back(dialog.AddSubclassedDlgControl(name, name, tabbed, WS_EX_TRANSPARENT, &rect, 0));
        top += 20;
    }
    dialog.beforeInit = [&] {
        for (INT_PTR index = 0; index < 6; ++index) {
            EXPECT_EQ(dialog.GetItem(index)->m_hWnd, nullptr) << index;
        }
    };
    RunWithOk(dialog, [&](HWND window) {
        for (size_t index = 0; index < ids.size(); ++index) {
            const HWND control = ::GetDlgItem(window, static_cast<int>(ids[index]));
            ASSERT_NE(control, nullptr) << index;
            EXPECT_EQ(::lstrcmpiW(ClassOf(control).c_str(), names[index]), 0) << index;
            const int y = 10 + 20 * static_cast<int>(index);
            EXPECT_EQ(ClientRectOf(control).TopLeft(), ToPixels(window, CRect(20, y, 90, y + 14)).TopLeft())
                << index;
            EXPECT_NE(::GetWindowLong(control, GWL_EXSTYLE) & WS_EX_TRANSPARENT, 0) << index;
        }
        EXPECT_EQ(TextOf(::GetDlgItem(window, static_cast<int>(ids[0]))), L"BUTTON");
    });
}

TEST_F(DynDialog, LetsADerivedClassSubclassAControlOfItsTemplate) {
    CTestDialog dialog(&m_parent);
    CPaintedStatic picture;
    const UINT id = dialog.AddSubclassedDlgControl(L"STATIC", L"", plain | SS_OWNERDRAW, 0, nullptr, 0);
    dialog.exchange = [&](CDataExchange* pDX) { DDX_Control(pDX, static_cast<int>(id), picture); };
    RunWithOk(dialog, [&](HWND window) {
        EXPECT_EQ(picture.m_hWnd, ::GetDlgItem(window, static_cast<int>(id)));
        ::InvalidateRect(picture, nullptr, TRUE);
        ::UpdateWindow(picture);
    });
    EXPECT_GT(picture.drawn, 0);
}

TEST_F(DynDialog, CannotBeMadeWithAClassThatHasNoOrdinalInItsTemplate) {
    CDynDialogEx dialog(&m_parent);
    dialog.AddSubclassedDlgControl(L"SysListView32", L"", tabbed, 0, nullptr, 0);
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(m_parent.IsWindowEnabled());
}

TEST_F(DynDialog, WritesItsSettingsIntoTheTemplate) {
    const LOGFONT description = MakeLogFont(L"Tahoma", 9);
    CFont font;
    font.CreateFontIndirect(&description);
    CTestDialog dialog(&m_parent);
    dialog.m_modeless = true;
    dialog.SetUseSystemButtons(false);
    dialog.SetFont(&font);
    dialog.SetWindowTitle(L"Title");
    const CRect edit(7, 7, 200, 100), button(56, 106, 106, 120);
    dialog.AddDlgControl(L"EDIT", L"not in the template", tabbed, 0, &edit, nullptr, 0);
    dialog.AddSubclassedDlgControl(L"BUTTON", L"first", 0x50010000, 0x20, &button, 70000);
    dialog.AddSubclassedDlgControl(L"STATIC", L"second", 0x50000000, 0, &edit, 71);
    ASSERT_EQ(dialog.DoModal(), TRUE);

    const DialogTemplate expected = {.style = 0x10C80040,
                                     .exStyle = 1,
                                     .extent = {0, 0, 205, 125},
                                     .caption = L"Title",
                                     .pointSize = 9,
                                     .faceName = L"Tahoma",
                                     .items = {{.style = 0x50010000,
                                                .exStyle = 0x20,
                                                .rect = {56, 106, 106, 120},
                                                .id = 70000,
                                                .typeCode = 128,
                                                .caption = L"first"},
                                               {.style = 0x50000000,
                                                .rect = {7, 7, 200, 100},
                                                .id = 71,
                                                .typeCode = 130,
                                                .caption = L"second"}}};
    std::vector<std::byte> bytes(TemplateSize(expected));
    WriteTemplate(expected, bytes);
    ASSERT_GE(dialog.modelessTemplate.size(), bytes.size());
    dialog.modelessTemplate.resize(bytes.size());
    EXPECT_EQ(dialog.modelessTemplate, bytes);
}

}  // namespace
