// The item dialog where the companion resource module cannot be found.
#include "ItemDialogFixture.h"

namespace {

class WithoutTexts : public ItemDialogFixture {};

TEST_F(WithoutTexts, TitlesAndLabelsGivenAsPlaceholdersComeOutEmpty) {
    folder.Write(L"item_TMP.TXT",
                 "x\n<<2001>>\nVAR\n$1 = \"<<1501>>\"R 5\n$2 = \"a <<1502>> b\"R 6\nEND_VAR\n");
    InDialog(
        [](HWND dialog, CPropertyGrid& grid) {
            EXPECT_EQ(TextOf(dialog), L"");
            EXPECT_EQ(Rows(grid), L" = 5 *\na  b = 6 *\n");
        },
        IDCANCEL);
    Run();
    EXPECT_TRUE(hands.messages.empty());
}

TEST_F(WithoutTexts, TheHeaderShowsTheTitleAlone) {
    WriteItem("");
    InDialog([](HWND dialog, CPropertyGrid&) { EXPECT_EQ(TextOf(::GetDlgItem(dialog, 102)), L"Item title"); },
             IDCANCEL);
    Run();
}

}  // namespace
