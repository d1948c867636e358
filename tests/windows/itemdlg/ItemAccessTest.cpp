// What the item dialog tells assistive technology.
#include "tests/windows/itemdlg/ItemDialogFixture.h"
#include "tests/windows/support/AccessibleClient.h"

namespace {

class ItemAccess : public ItemDialogFixture {
protected:
    void SetUp() override {
        ItemDialogFixture::SetUp();
        OfferTextModule();
    }
};

TEST_F(ItemAccess, NamesThePictureByTheItemAndTheGridByItsHeader) {
    WriteItem("$1 = \"<<1501>>\"R 80\n");
    InDialog(
        [](HWND dialog, CPropertyGrid& grid) {
            std::wstring header = TextOf(::GetDlgItem(dialog, 102));
            EXPECT_TRUE(header.starts_with(L' ')) << "indented";
            header.erase(0, header.find_first_not_of(L' '));
            const CAccessibleClient client(grid);
            EXPECT_EQ(client.NameOf(0), header);
            EXPECT_EQ(client.RoleOf(0), ROLE_SYSTEM_LIST);
            const CAccessibleClient picture(::GetDlgItem(dialog, 101));
            EXPECT_EQ(picture.NameOf(0), TextOf(dialog));
            EXPECT_EQ(picture.RoleOf(0), ROLE_SYSTEM_GRAPHIC);
        },
        IDCANCEL);
    Run();
}

TEST_F(ItemAccess, TellsLengthsAsTheHostWritesThem) {
    WriteItem("$1 = \"<<1501>>\"D 80.5\n");
    InDialog(
        [](HWND, CPropertyGrid& grid) {
            const CAccessibleClient client(grid);
            ICustomItem* length = nullptr;
            ASSERT_TRUE(grid.GetItemValue(0, length));
            EXPECT_EQ(client.ValueOf(1), length->GetStringValue());
            EXPECT_EQ(client.ActionOf(1), L"Edit");
            EXPECT_EQ(client.ShortcutOf(1), L"F2");
        },
        IDCANCEL);
    Run();
}

}  // namespace
