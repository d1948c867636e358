// What the grid asks the system's dialogs for, and what it makes of their answers; the dialogs themselves
// are played.
#include <afxdlgs.h>
#include <gtest/gtest.h>
#include <shlobj.h>

#include <algorithm>
#include <cwchar>
#include <iterator>

#include "propgrid/editors/FolderBrowser.h"
#include "propgrid/editors/GridDialogs.h"
#include "propgrid/painter/FrameworkTypes.h"
#include "tests/windows/propgrid/GridFixture.h"
#include "tests/windows/support/ImportHook.h"

extern "C" {
extern BOOL(WINAPI* __imp_GetOpenFileNameW)(LPOPENFILENAMEW dialog) IMPORT_ENTRY(GetOpenFileNameW, 4);
extern BOOL(WINAPI* __imp_ChooseColorW)(LPCHOOSECOLORW dialog) IMPORT_ENTRY(ChooseColorW, 4);
extern BOOL(WINAPI* __imp_ChooseFontW)(LPCHOOSEFONTW dialog) IMPORT_ENTRY(ChooseFontW, 4);
extern LPITEMIDLIST(WINAPI* __imp_SHBrowseForFolderW)(LPBROWSEINFOW dialog)
    IMPORT_ENTRY(SHBrowseForFolderW, 4);
extern BOOL(WINAPI* __imp_SHGetPathFromIDListW)(LPCITEMIDLIST list, LPWSTR path)
    IMPORT_ENTRY(SHGetPathFromIDListW, 8);
}

namespace {

// The arguments of the last dialog.
HWND owner;
DWORD flags;

class GridSystemDialogs : public testing::Test {
protected:
    GridSystemDialogs() : m_title(FolderBrowseTitle()) {}
    ~GridSystemDialogs() override { FolderBrowseTitle() = m_title; }

    // Runs the dialog of an item.
    std::optional<Value> Ask(EItemType kind, Value value, const std::vector<std::wstring>& options = {}) {
        GridItem item;
        item.kind = kind;
        item.value = std::move(value);
        item.options = options;
        return AskForValue({&parent, nullptr, m_texts}, item);
    }

    CGridParent parent;

private:
    GridTexts m_texts;
    std::wstring m_title;
};

TEST_F(GridSystemDialogs, AFileIsAskedForWithTheFilterTheNameAndNoExtension) {
    static std::wstring name, filter;
    static bool hasExtension;
    const CImportHook open(
        __imp_GetOpenFileNameW, +[](LPOPENFILENAMEW dialog) WINAPI {
            owner = dialog->hwndOwner;
            flags = dialog->Flags;
            name = dialog->lpstrFile;
            filter.assign(dialog->lpstrFilter, 18);
            hasExtension = dialog->lpstrDefExt != nullptr;
            std::wcscpy(dialog->lpstrFile, L"D:\\new.txt");
            return TRUE;
        });
    EXPECT_EQ(Ask(IT_FILE, std::wstring(L"D:\\old.txt"), {L"Texts|*.txt|All|*||"}),
              Value(std::wstring(L"D:\\new.txt")));
    EXPECT_EQ(owner, parent.m_hWnd);
    EXPECT_EQ(name, L"D:\\old.txt");
    EXPECT_EQ(filter, std::wstring(L"Texts\0*.txt\0All\0*\0", 18));
    EXPECT_FALSE(hasExtension);
    // Beyond these the framework sets what makes a dialog of the new kind.
    EXPECT_EQ(flags & ~DWORD{OFN_EXPLORER | OFN_ENABLESIZING | OFN_ENABLEHOOK},
              DWORD{OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT});
}

TEST_F(GridSystemDialogs, AColourIsAskedForWithoutAnyFlags) {
    static COLORREF initial;
    const CImportHook choose(
        __imp_ChooseColorW, +[](LPCHOOSECOLORW dialog) WINAPI {
            owner = dialog->hwndOwner;
            flags = dialog->Flags;
            initial = dialog->rgbResult;
            dialog->rgbResult = RGB(4, 5, 6);
            return TRUE;
        });
    EXPECT_EQ(Ask(IT_COLOR, Color{RGB(1, 2, 3)}), Value(Color{RGB(4, 5, 6)}));
    EXPECT_EQ(owner, parent.m_hWnd);
    EXPECT_EQ(initial, RGB(1, 2, 3));
    // What the framework itself needs apart.
    EXPECT_EQ(flags & ~DWORD{CC_RGBINIT | CC_ENABLEHOOK | CC_SHOWHELP}, 0U);
}

TEST_F(GridSystemDialogs, AFontIsAskedForAmongThoseOfTheScreenWithEffects) {
    static LONG initialHeight;
    const CImportHook choose(
        __imp_ChooseFontW, +[](LPCHOOSEFONTW dialog) WINAPI {
            owner = dialog->hwndOwner;
            flags = dialog->Flags;
            initialHeight = dialog->lpLogFont->lfHeight;
            dialog->lpLogFont->lfHeight = -20;
            return TRUE;
        });
    FontValue font;
    font.height = -12;
    const std::optional<Value> chosen = Ask(IT_FONT, std::make_shared<const FontValue>(font));
    ASSERT_TRUE(chosen);
    EXPECT_EQ(std::get<FontPointer>(*chosen)->height, -20);
    EXPECT_EQ(owner, parent.m_hWnd);
    EXPECT_EQ(initialHeight, -12);
    EXPECT_EQ(flags & ~DWORD{CF_INITTOLOGFONTSTRUCT | CF_ENABLEHOOK}, DWORD{CF_SCREENFONTS | CF_EFFECTS});
}

TEST_F(GridSystemDialogs, AFontIsAskedForWithAFaceNameThatEnds) {
    static std::wstring face;
    const CImportHook choose(
        __imp_ChooseFontW, +[](LPCHOOSEFONTW dialog) WINAPI {
            const wchar_t(&name)[LF_FACESIZE] = dialog->lpLogFont->lfFaceName;
            face.assign(name, ::wcsnlen(name, LF_FACESIZE));
            return FALSE;
        });
    FontValue font;
    std::fill(std::begin(font.faceName), std::end(font.faceName), u'x');
    EXPECT_FALSE(Ask(IT_FONT, std::make_shared<const FontValue>(font)));
    EXPECT_EQ(face, std::wstring(LF_FACESIZE - 1, L'x'));
}

// A window that stands in for the browser's and records its messages.
class CPlayedBrowser : public CWnd {
public:
    CPlayedBrowser() { CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0); }
    ~CPlayedBrowser() override { DestroyWindow(); }

    std::wstring selected;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == 1127 && wParam == TRUE) {
            selected = reinterpret_cast<const wchar_t*>(lParam);
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

LPITEMIDLIST AnyFolder() {
    LPITEMIDLIST list = nullptr;
    ::SHGetSpecialFolderLocation(nullptr, CSIDL_WINDOWS, &list);
    return list;
}

TEST_F(GridSystemDialogs, AFolderIsAskedForAmongThoseOfTheFileSystemWithTheOldOneSelected) {
    static std::wstring title, selected;
    static bool hasRoot;
    const CImportHook browse(
        __imp_SHBrowseForFolderW, +[](LPBROWSEINFOW dialog) WINAPI {
            owner = dialog->hwndOwner;
            flags = dialog->ulFlags;
            title = dialog->lpszTitle;
            hasRoot = dialog->pidlRoot != nullptr;
            CPlayedBrowser browser;
            dialog->lpfn(browser, BFFM_SELCHANGED, 0, dialog->lParam);
            EXPECT_EQ(browser.selected, L"");
            dialog->lpfn(browser, BFFM_INITIALIZED, 0, dialog->lParam);
            selected = browser.selected;
            return AnyFolder();
        });
    const std::optional<Value> path = Ask(IT_FOLDER, std::wstring(L"D:\\old"), {L"Where to?"});
    ASSERT_TRUE(path);
    EXPECT_EQ(::lstrcmpi(std::get<std::wstring>(*path).c_str(), L"C:\\windows"), 0);
    EXPECT_EQ(owner, parent.m_hWnd);
    EXPECT_EQ(flags, 0x49U);
    EXPECT_EQ(title, L"Where to?");
    EXPECT_EQ(selected, L"D:\\old");
    EXPECT_FALSE(hasRoot);
}

TEST_F(GridSystemDialogs, AFolderWithoutAPathIsNoChoice) {
    const CImportHook browse(
        __imp_SHBrowseForFolderW, +[](LPBROWSEINFOW) WINAPI { return AnyFolder(); });
    const CImportHook path(
        __imp_SHGetPathFromIDListW, +[](LPCITEMIDLIST, LPWSTR) WINAPI { return FALSE; });
    std::wstring browsed = L"D:\\old";
    EXPECT_TRUE(BrowseForFolder(browsed, parent.m_hWnd));
    EXPECT_EQ(browsed, L"");
    EXPECT_FALSE(Ask(IT_FOLDER, std::wstring(L"D:\\old")));
}

}  // namespace
