// The folder browser, driven for real: confirmed, cancelled, and what it opens with.
#include "propgrid/editors/FolderBrowser.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include "tests/windows/propgrid/GridFixture.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/ModalDriver.h"
#include "tests/windows/support/TempFolder.h"

namespace {

// Controls of the system's dialog.
constexpr int treeId = 14145;
constexpr int titleId = 14146;
constexpr int newFolderId = 14150;

std::wstring TextOf(HWND window) {
    wchar_t text[200] = {};
    ::GetWindowText(window, text, 200);
    return text;
}

HTREEITEM SelectedIn(HWND tree) {
    return reinterpret_cast<HTREEITEM>(::SendMessage(tree, TVM_GETNEXTITEM, TVGN_CARET, 0));
}

// The name of the folder that is selected.
std::wstring SelectionOf(HWND dialog) {
    const HWND tree = ::GetDlgItem(dialog, treeId);
    wchar_t text[MAX_PATH] = {};
    TVITEM item = {};
    item.mask = TVIF_TEXT;
    item.hItem = SelectedIn(tree);
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    ::SendMessage(tree, TVM_GETITEM, 0, reinterpret_cast<LPARAM>(&item));
    return text;
}

void SelectParentFolder(HWND dialog) {
    const HWND tree = ::GetDlgItem(dialog, treeId);
    const LRESULT parent =
        ::SendMessage(tree, TVM_GETNEXTITEM, TVGN_PARENT, reinterpret_cast<LPARAM>(SelectedIn(tree)));
    ::SendMessage(tree, TVM_SELECTITEM, TVGN_CARET, parent);
}

class FolderBrowser : public testing::Test {
protected:
    FolderBrowser() : m_title(FolderBrowseTitle()) {
        ::CreateDirectory(temp.Path(L"outer").c_str(), nullptr);
        ::CreateDirectory(inner.c_str(), nullptr);
    }
    ~FolderBrowser() override {
        FolderBrowseTitle() = m_title;
        ::RemoveDirectory(inner.c_str());
        ::RemoveDirectory(temp.Path(L"outer").c_str());
    }

    // Opens the browser on `path`, lets `act` look and do, and presses a button.
    bool Browse(
        std::wstring& path, int button, const CModalDriver::Step& act = [](HWND) {}) {
        CModalDriver driver;
        driver.Then([&](HWND dialog) {
            act(dialog);
            PressButton(dialog, button);
        });
        const bool chosen = BrowseForFolder(path, parent.m_hWnd);
        EXPECT_EQ(driver.StepsLeft(), 0U);
        return chosen;
    }

    CTempFolder temp;
    const std::wstring inner = temp.Path(L"outer\\caff\u00E8 and more");
    CGridParent parent;

private:
    std::wstring m_title;
};

TEST_F(FolderBrowser, HasATitleOfItsOwnUntilItIsGivenAnother) {
    EXPECT_EQ(FolderBrowseTitle(), L"Choose a directory");
    std::wstring path;
    Browse(path, IDCANCEL,
           [](HWND dialog) { EXPECT_EQ(TextOf(::GetDlgItem(dialog, titleId)), L"Choose a directory"); });
    FolderBrowseTitle() = L"Cartella";
    for (int time = 0; time < 2; ++time) {
        Browse(path, IDCANCEL,
               [](HWND dialog) { EXPECT_EQ(TextOf(::GetDlgItem(dialog, titleId)), L"Cartella"); });
    }
}

TEST_F(FolderBrowser, OpensInTheNewStyleOverItsOwner) {
    std::wstring path;
    Browse(path, IDCANCEL, [this](HWND dialog) {
        EXPECT_EQ(::GetWindow(dialog, GW_OWNER), parent.m_hWnd);
        EXPECT_FALSE(parent.IsWindowEnabled());
        EXPECT_TRUE(::IsWindowVisible(::GetDlgItem(dialog, newFolderId)));
    });
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST_F(FolderBrowser, OpensOnThePathGivenAndGivesItBackWhenConfirmed) {
    std::wstring path = inner;
    EXPECT_TRUE(
        Browse(path, IDOK, [](HWND dialog) { EXPECT_EQ(SelectionOf(dialog), L"caff\u00E8 and more"); }));
    EXPECT_EQ(path, inner);
}

TEST_F(FolderBrowser, GivesTheFolderThatTheUserSelects) {
    std::wstring path = inner;
    EXPECT_TRUE(Browse(path, IDOK, SelectParentFolder));
    EXPECT_EQ(path, temp.Path(L"outer"));
}

TEST_F(FolderBrowser, LeavesThePathAloneWhenCancelled) {
    std::wstring path = inner;
    EXPECT_FALSE(Browse(path, IDCANCEL, SelectParentFolder));
    EXPECT_EQ(path, inner);
}

TEST_F(FolderBrowser, LeavesThePathAloneWhenClosed) {
    std::wstring path = inner;
    CModalDriver driver;
    driver.Then([](HWND dialog) { ::PostMessage(dialog, WM_SYSCOMMAND, SC_CLOSE, 0); });
    EXPECT_FALSE(BrowseForFolder(path, parent.m_hWnd));
    EXPECT_EQ(path, inner);
}

TEST_F(FolderBrowser, OpensWithoutAPathThatExists) {
    for (const std::wstring& none :
         {std::wstring(), std::wstring(L"Q:\\no\\such\\folder"), std::wstring(L"\\\\:?*"),
          std::wstring(100000, L'x'), L"C:\\" + std::wstring(100000, L'\\')}) {
        std::wstring path = none;
        EXPECT_FALSE(Browse(path, IDCANCEL));
        EXPECT_EQ(path, none);
    }
}

TEST_F(FolderBrowser, OpensWithALongTitle) {
    FolderBrowseTitle() = std::wstring(100000, L'm');
    std::wstring path = inner;
    EXPECT_TRUE(Browse(path, IDOK));
    EXPECT_EQ(path, inner);
}

TEST_F(FolderBrowser, NeedsNoOwner) {
    CModalDriver driver;
    driver.Then([](HWND dialog) { PressButton(dialog, IDOK); });
    std::wstring path = inner;
    EXPECT_TRUE(BrowseForFolder(path, nullptr));
    EXPECT_EQ(path, inner);
}

TEST_F(FolderBrowser, LeavesNothingBehind) {
    const auto cycle = [&] {
        std::wstring path = inner;
        Browse(path, IDOK);
        Browse(path, IDCANCEL);
    };
    for (int i = 0; i < 3; ++i) {
        cycle();
    }
    const ProcessHoldings before = CountHoldings();
    for (int i = 0; i < 10; ++i) {
        cycle();
    }
    EXPECT_EQ(CountHoldings(), before);
}

}  // namespace
