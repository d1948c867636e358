// The item dialog's life: opening, what it shows, how it ends.
#include "tests/windows/itemdlg/ItemDialogFixture.h"

namespace {

constexpr COLORREF headerGray = 0xC8C8C8;
constexpr COLORREF dialogGray = 0xE1E1E1;

class ItemDialog : public ItemDialogFixture {
protected:
    void SetUp() override {
        ItemDialogFixture::SetUp();
        OfferTextModule();
    }
};

TEST_F(ItemDialog, AnEmptyBaseNameIsReportedAndClosesTheDialog) {
    driver.ThenPressOk();
    EXPECT_NE(Run(1.0, 0, L""), IDOK);
    ASSERT_EQ(driver.messages.size(), 1U);
    EXPECT_EQ(driver.messages[0].text, L"Please specify a file name!");
    EXPECT_EQ(driver.messages[0].caption, L"Error!");
    EXPECT_EQ(driver.messages[0].buttons, 1);
}

TEST_F(ItemDialog, AMissingWorkingFileIsNamedAndClosesTheDialog) {
    folder.Write(L"item.TXT", "");
    driver.ThenPressOk();
    EXPECT_NE(Run(), IDOK);
    ASSERT_EQ(driver.messages.size(), 1U);
    EXPECT_EQ(driver.messages[0].text, L"File not found 'item_TMP.TXT'!");
    EXPECT_EQ(driver.messages[0].caption, L"Error!");
    EXPECT_EQ(driver.messages[0].buttons, 1);
    EXPECT_EQ(folder.Read(L"item.TXT"), "");
}

// Notes whether a dialog was ever shown with its contents.
class CShowWatcher : public CTavrinWndDlg {
public:
    using CTavrinWndDlg::CTavrinWndDlg;
    bool wasShown = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_WINDOWPOSCHANGED &&
            (reinterpret_cast<const WINDOWPOS*>(lParam)->flags & SWP_SHOWWINDOW) != 0) {
            wasShown = true;
        }
        return CTavrinWndDlg::WindowProc(message, wParam, lParam);
    }
};

TEST_F(ItemDialog, IsNotShownWhenItsArgumentsAreUnusable) {
    driver.ThenPressOk();
    CShowWatcher unusable(nullptr);
    unusable.DoModal();
    EXPECT_FALSE(unusable.wasShown);

    WriteItem("");
    PressInDialog(IDCANCEL);
    CShowWatcher usable(nullptr);
    usable.SetArguments(L"item", 1.0, 0);
    usable.DoModal();
    EXPECT_TRUE(usable.wasShown);
}

TEST_F(ItemDialog, TakesItsTitleFromTheSecondLine) {
    WriteItem("");
    InDialog([](HWND dialog, CPropertyGrid&) {
        EXPECT_EQ(TextOf(dialog), L"Item title");
        EXPECT_EQ(TextOf(::GetDlgItem(dialog, 102)), L"  Parametri: Item title");
    });
    EXPECT_EQ(Run(), IDOK);
}

TEST_F(ItemDialog, ReplacesATitleLineThatHoldsAPlaceholderAsAWhole) {
    folder.Write(L"item_TMP.TXT", "x\nThis goes <<2001>> and this\n");
    InDialog(
        [](HWND dialog, CPropertyGrid&) {
            EXPECT_EQ(TextOf(dialog), L"Porta a battente");
            EXPECT_EQ(TextOf(::GetDlgItem(dialog, 102)), L"  Parametri: Porta a battente");
        },
        IDCANCEL);
    Run();
}

TEST_F(ItemDialog, KeepsItsOwnTitlesForAFileOfFewerThanTwoLines) {
    for (const char* text : {"", "only line", "only line\n"}) {
        folder.Write(L"item_TMP.TXT", text);
        InDialog(
            [](HWND dialog, CPropertyGrid& grid) {
                EXPECT_EQ(TextOf(dialog), L"item");
                EXPECT_EQ(TextOf(::GetDlgItem(dialog, 102)), L"  Parametri");
                EXPECT_EQ(grid.GetItemCount(), 0U);
            },
            IDCANCEL);
        Run();
    }
}

TEST_F(ItemDialog, PaintsTheHeaderDarkerThanTheRest) {
    WriteItem("$1 = \"<<1501>>\"R 5\n");
    InDialog([](HWND dialog, CPropertyGrid&) {
        PumpMessages();
        const CClientPixels header(::GetDlgItem(dialog, 102));
        EXPECT_EQ(header.At(1, 1), headerGray);
        EXPECT_EQ(header.At(header.Width() - 2, header.Height() - 2), headerGray);
        EXPECT_EQ(header.Count({0, 0, header.Width(), header.Height()}, dialogGray), 0);
        RECT surroundings = {530, 268, 645, 290};
        ::MapDialogRect(dialog, &surroundings);
        const CClientPixels whole(dialog);
        EXPECT_EQ(whole.At(surroundings.left, surroundings.bottom - 2), dialogGray);
        EXPECT_EQ(whole.At(surroundings.right - 2, surroundings.bottom - 2), dialogGray);
    });
    Run();
}

TEST_F(ItemDialog, GivesTheGridItsGreys) {
    WriteItem("");
    InDialog([](HWND, CPropertyGrid& grid) {
        EXPECT_EQ(grid.GetBackColor(), dialogGray);
        EXPECT_EQ(grid.GetShadeColor(), headerGray);
        EXPECT_EQ(grid.GetDisplayMode(), 2U);
        EXPECT_EQ(grid.GetGutterWidth(), 210);
        EXPECT_EQ(grid.GetSectionName(0), L"Item Data");
    });
    Run();
}

TEST_F(ItemDialog, SetsTheHeaderIn16Points) {
    WriteItem("");
    InDialog([](HWND dialog, CPropertyGrid&) {
        LOGFONTW font = {};
        const auto handle = reinterpret_cast<HFONT>(::SendDlgItemMessageW(dialog, 102, WM_GETFONT, 0, 0));
        ::GetObjectW(handle, sizeof(font), &font);
        const CClientDC dc(nullptr);
        EXPECT_EQ(std::abs(font.lfHeight), ::MulDiv(160, dc.GetDeviceCaps(LOGPIXELSY), 720));
        EXPECT_STREQ(font.lfFaceName, L"Microsoft Sans Serif");
    });
    Run();
}

TEST_F(ItemDialog, LeavesTheFilesAloneWhenCancelled) {
    WriteItem("$1 = \"<<1501>>\"R 5\n");
    const std::string before = folder.Read(L"item.TXT");
    for (const UINT message : {WM_COMMAND, WM_CLOSE, WM_KEYDOWN}) {
        driver.Then([=](HWND dialog) {
            ::PostMessageW(dialog, message, message == WM_COMMAND ? IDCANCEL : VK_ESCAPE, 0);
        });
        EXPECT_EQ(Run(), IDCANCEL);
        EXPECT_EQ(folder.Read(L"item.TXT"), before);
        EXPECT_EQ(folder.Read(L"item_TMP.TXT"), before);
    }
}

TEST_F(ItemDialog, FindsItsFilesThroughTheHost) {
    WriteItem("");
    PressInDialog(IDCANCEL);
    Run();
    EXPECT_EQ(fakeHost.searched.front(), L"item_TMP.TXT");
    EXPECT_NE(std::find(fakeHost.searched.begin(), fakeHost.searched.end(), L"item.png"),
              fakeHost.searched.end());
}

TEST_F(ItemDialog, LeavesNothingBehind) {
    WriteItem("$1 = \"<<1501>>\"D 900\n$2 = \"<<1502>>\"I 2\n$3 = \"<<1503>>\"R 0.5\n");
    const auto cycle = [&](int button) {
        PressInDialog(button);
        Run();
        driver.Forget();
        fakeHost.searched.clear();
    };
    cycle(IDOK);
    WriteItem("$1 = \"<<1501>>\"D 900\n$2 = \"<<1502>>\"I 2\n$3 = \"<<1503>>\"R 0.5\n");
    cycle(IDCANCEL);
    const ProcessHoldings before = CountHoldings();
    for (int round = 0; round < 200; ++round) {
        cycle(IDCANCEL);
    }
    EXPECT_EQ(CountHoldings(), before);
}

}  // namespace
