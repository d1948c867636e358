// The item dialog where the companion resource module cannot be found, is no module, or holds no texts.
#include <filesystem>

#include "tests/windows/itemdlg/ItemDialogFixture.h"

namespace {

class WithoutTexts : public ItemDialogFixture {
protected:
    void TearDown() override { ::SetDllDirectoryW(nullptr); }

    void ExpectEmptyTexts() {
        folder.Write(L"item_TMP.TXT",
                     "x\n<<2001>>\nVAR\n$1 = \"<<1501>>\"R 5\n$2 = \"a <<1502>> b\"R 6\nEND_VAR\n");
        InDialog(
            [](HWND dialog, CPropertyGrid& grid) {
                EXPECT_EQ(TextOf(dialog), L"");
                EXPECT_EQ(Rows(grid), L" = 5 *\na  b = 6 *\n");
            },
            IDCANCEL);
        Run();
        EXPECT_TRUE(driver.messages.empty());
    }
};

TEST_F(WithoutTexts, TitlesAndLabelsGivenAsPlaceholdersComeOutEmpty) {
    ExpectEmptyTexts();
}

TEST_F(WithoutTexts, TheHeaderShowsTheTitleAlone) {
    WriteItem("");
    InDialog([](HWND dialog, CPropertyGrid&) { EXPECT_EQ(TextOf(::GetDlgItem(dialog, 102)), L"Item title"); },
             IDCANCEL);
    Run();
}

TEST_F(WithoutTexts, OkWritesTheFilesAsWithThem) {
    WriteItem("$1 = \"a <<1501>> b\"R 5\n");
    PressInDialog(IDOK);
    EXPECT_EQ(Run(), IDOK);
    EXPECT_TRUE(driver.messages.empty());
    EXPECT_EQ(folder.Read(L"item_TMP.TXT"), "first line\r\nItem title\r\nVAR\r\n#1 = 5\r\nEND_VAR\r\n");
    EXPECT_EQ(folder.Read(L"item.TXT"),
              "first line\r\nItem title\r\nVAR\r\n$1 = \"a <<1501>> b\"R5\r\nEND_VAR\r\n");
}

TEST_F(WithoutTexts, AFileThatIsNoModuleIsAsGoodAsNone) {
    folder.Write(L"TavrinRes.dll", "no module");
    ::SetDllDirectoryW(folder.Path(L"").c_str());
    ExpectEmptyTexts();
}

// Once loaded the module stays, so this test must remain the last one.
TEST_F(WithoutTexts, AModuleThatHoldsNoTextsIsAsGoodAsNone) {
    wchar_t other[MAX_PATH];
    ::GetModuleFileNameW(::GetModuleHandleW(L"TD_Alloc.dll"), other, MAX_PATH);
    std::filesystem::copy_file(other, folder.Path(L"TavrinRes.dll"));
    ::SetDllDirectoryW(folder.Path(L"").c_str());
    ExpectEmptyTexts();
    EXPECT_NE(::GetModuleHandleW(L"TavrinRes.dll"), nullptr);
}

}  // namespace
