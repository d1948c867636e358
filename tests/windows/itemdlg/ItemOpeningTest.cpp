// The filling of the item dialog: what it leaves where its file fails, and filling it once more.
#include <memory>

#include "tests/windows/itemdlg/BreakingFile.h"
#include "tests/windows/itemdlg/FileLock.h"
#include "tests/windows/itemdlg/ItemDialogFixture.h"
#include "tests/windows/support/Bitmap.h"

namespace {

constexpr const char* block = "$1 = \"<<1501>>\"R 1\n$2 = \"<<1502>>\"I 2\n";

class ItemOpening : public ItemDialogFixture {
protected:
    void SetUp() override {
        ItemDialogFixture::SetUp();
        OfferTextModule();
    }

    // From here on the host answers the n-th search for the working file with the path from `find`; without
    // one the file is not found. The dialog searches once to check that the file exists and once to read it.
    void FindWorkingFile(std::function<std::optional<std::wstring>(int search)> find) {
        fakeHost.findFile = [this, find = std::move(find), searches = 0](const wchar_t* name, wchar_t* result,
                                                                         size_t) mutable {
            if (std::wcscmp(name, L"item_TMP.TXT") != 0) {
                return FakeHost::RtNorm - 1;
            }
            const std::optional<std::wstring> path = find(++searches);
            std::wcscpy(result, path.value_or(L"").c_str());
            return path ? FakeHost::RtNorm : FakeHost::RtNorm - 1;
        };
    }

    static CTavrinWndDlg& DialogOf(HWND window) {
        return *static_cast<CTavrinWndDlg*>(CWnd::FromHandlePermanent(window));
    }
};

TEST_F(ItemOpening, AWorkingFileThatVanishesMeanwhileIsReportedAndTheDialogStaysOpenWithoutRows) {
    WriteItem(block);
    FindWorkingFile([this](int search) {
        return search == 1 ? std::optional(folder.Path(L"item_TMP.TXT")) : std::nullopt;
    });
    driver.ThenPressOk();
    InDialog(
        [](HWND dialog, CPropertyGrid& grid) {
            EXPECT_EQ(grid.GetSectionCount(), 1U);
            EXPECT_EQ(grid.GetSectionName(0), L"Item Data");
            EXPECT_EQ(grid.GetItemCount(), 0U);
            EXPECT_EQ(TextOf(dialog), L"item");
            EXPECT_EQ(TextOf(::GetDlgItem(dialog, 102)), L"  Parametri");
        },
        IDCANCEL);
    EXPECT_EQ(Run(), IDCANCEL);
    ASSERT_EQ(driver.messages.size(), 1U);
    EXPECT_EQ(driver.messages[0].text, L"File not found!");
    EXPECT_EQ(driver.messages[0].caption, L"Error!");
    EXPECT_EQ(driver.messages[0].buttons, 1);
}

TEST_F(ItemOpening, TheRowsReadBeforeAFailureStay) {
    CBreakingFile file("first line\r\nItem title\r\nVAR\r\n$1 = \"<<1501>>\"R 1\r\n$2 = \"<<1502>>\"I 2");
    FindWorkingFile([](int) { return std::wstring(CBreakingFile::Path()); });
    driver.ThenPressOk();
    InDialog(
        [](HWND dialog, CPropertyGrid& grid) {
            EXPECT_EQ(Rows(grid), L"Larghezza anta = 1 *\n");
            EXPECT_EQ(TextOf(dialog), L"Item title");
        },
        IDCANCEL);
    EXPECT_EQ(Run(), IDCANCEL);
    ASSERT_EQ(driver.messages.size(), 1U);
    EXPECT_EQ(driver.messages[0].text, L"Error - unable to open file");
    EXPECT_EQ(driver.messages[0].caption, L"Error");
    EXPECT_EQ(driver.messages[0].buttons, 1);
}

TEST_F(ItemOpening, APictureThatAnotherProgramHoldsIsLeftOutWithoutAMessage) {
    WriteItem(block);
    folder.Write(L"item.png", BitmapFile(2, 2, std::vector<unsigned>(4, 0x3060C0)));
    const auto grayOfPicture = [this] {
        bool gray = false;
        InDialog(
            [&](HWND dialog, CPropertyGrid&) {
                PumpMessages();
                const CClientPixels picture(::GetDlgItem(dialog, 101));
                gray = picture.At(picture.Width() / 2, picture.Height() / 2) == 0xE1E1E1;
            },
            IDCANCEL);
        EXPECT_EQ(Run(), IDCANCEL);
        return gray;
    };
    EXPECT_FALSE(grayOfPicture());
    const CFileLock lock(folder.Path(L"item.png"));
    EXPECT_TRUE(grayOfPicture());
    EXPECT_TRUE(driver.messages.empty());
}

TEST_F(ItemOpening, FillingItOnceMoreForgetsTheRowsBefore) {
    WriteItem("$7 = \"<<1503>>\"R 7\n" + std::string(block));
    InDialog([this](HWND dialog, CPropertyGrid& grid) {
        EXPECT_EQ(grid.GetItemCount(), 3U);
        WriteItem("free\n$2 = \"<<1502>>\"I 5\n");
        DialogOf(dialog).LoadTemplate();
        EXPECT_EQ(grid.GetSectionCount(), 1U);
        EXPECT_EQ(Rows(grid), L"Altezza anta = 5 *\n");
    });
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(folder.Read(L"item_TMP.TXT"),
              "first line\r\nItem title\r\nVAR\r\nfree\r\n$2 = 5\r\nEND_VAR\r\n");
}

TEST_F(ItemOpening, OperationsForClientsLookUpPlaceholdersAndTexts) {
    CTavrinWndDlg dialog;
    EXPECT_EQ(dialog.GetPlaceholderNumber(L"<<1>> and <<2001>> and <<x>>"), 2001);
    EXPECT_EQ(dialog.GetPlaceholderNumber(L"none"), 0);
    CString text = L"before";
    EXPECT_EQ(dialog.LoadResString(text, 2001), CString(L"Porta a battente"));
    EXPECT_EQ(text, CString(L"Porta a battente"));
    EXPECT_EQ(dialog.LoadResString(text, 60000), CString());
    EXPECT_EQ(text, CString());
}

TEST_F(ItemOpening, TheDialogKnowsItsClass) {
    const CTavrinWndDlg dialog;
    EXPECT_TRUE(dialog.IsKindOf(RUNTIME_CLASS(CDialog)));
    EXPECT_STREQ(dialog.GetRuntimeClass()->m_lpszClassName, "CTavrinWndDlg");
}

TEST_F(ItemOpening, OnlyTheHeadersDeviceContextIsChanged) {
    WriteItem("");
    InDialog(
        [](HWND window, CPropertyGrid&) {
            CTavrinWndDlg& dialog = DialogOf(window);
            CClientDC dc(&dialog);
            dc.SetBkColor(0x123456);
            for (CWnd* const other :
                 {static_cast<CWnd*>(&dialog), dialog.GetDlgItem(101), dialog.GetDlgItem(1)}) {
                EXPECT_NE(dialog.OnCtlColor(&dc, other, CTLCOLOR_STATIC), nullptr);
                EXPECT_EQ(::GetBkColor(dc), 0x123456U);
            }
            dialog.OnCtlColor(&dc, dialog.GetDlgItem(102), CTLCOLOR_STATIC);
            EXPECT_EQ(::GetBkColor(dc), 0xC8C8C8U);
        },
        IDCANCEL);
    Run();
}

// A dialog whose placeholders are other numbers than those that the files say.
class CRenumberedDlg : public CTavrinWndDlg {
public:
    using CTavrinWndDlg::CTavrinWndDlg;
    int GetPlaceholderNumber(CString line) override {
        const int number = CTavrinWndDlg::GetPlaceholderNumber(line);
        return number == 0 ? 0 : number + 1;
    }
    CString LoadResString(CString& out, unsigned id) override {
        out.Format(L"text %u", id);
        return out;
    }
};

TEST_F(ItemOpening, PlaceholdersAreFoundByTheDialogsOwnOperation) {
    folder.Write(L"item_TMP.TXT", "first line\n<<2001>>\nVAR\n$1 = \"(<<1501>>)\"R 1\n$2 = \"<<0>>\"R 2\n");
    std::wstring rows, title;
    InDialog(
        [&](HWND window, CPropertyGrid& grid) {
            rows = Rows(grid);
            title = TextOf(window);
        },
        IDCANCEL);
    CRenumberedDlg dialog;
    dialog.SetArguments(L"item", 1.0, 0);
    dialog.DoModal();
    EXPECT_EQ(title, L"text 2002");
    EXPECT_EQ(rows, L"(text 1502) = 1 *\n<<0>> = 2 *\n");
}

}  // namespace
