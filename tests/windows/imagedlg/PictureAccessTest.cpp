// What the pictures of the choice and the preview dialog tell assistive technology.
#include "imagedlg/TavrinPreviewDlg.h"
#include "tests/windows/imagedlg/ChoiceFixture.h"
#include "tests/windows/support/AccessibleClient.h"
#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/FakeHost.h"

namespace {

using Events = std::vector<std::string>;

class PictureAccess : public CChoiceFixture {
protected:
    // The names of the six cells, each followed by "*" when it is selected and "-" when it cannot be.
    static std::wstring Cells(HWND dialog) {
        std::wstring cells;
        for (int cell = 1; cell <= kChoiceCells; ++cell) {
            const CAccessibleClient client(CellOf(dialog, cell));
            const unsigned state = client.StateOf(0);
            EXPECT_EQ(client.RoleOf(0), ROLE_SYSTEM_GRAPHIC);
            EXPECT_EQ(client.CountChildren(), 0);
            cells += client.NameOf(0);
            cells += (state & STATE_SYSTEM_SELECTED) != 0 ? L"*" : L"";
            cells += (state & STATE_SYSTEM_SELECTABLE) != 0 ? L" " : L"- ";
        }
        return cells;
    }
    static bool WaitForCells(HWND dialog, const std::wstring& cells) {
        return PumpUntil([&] { return Cells(dialog) == cells; });
    }
};

TEST_F(PictureAccess, NamesTheChoicesAndTheSelectedOne) {
    RunPainted(5, [](CTavrinSelMaskDlg& dialog) {
        EXPECT_EQ(Cells(dialog), L"c0* c1 c2 c3 (none)- c4 ");
        dialog.SelectCell(6);
        EXPECT_EQ(Cells(dialog), L"c0 c1 c2 c3 (none)- c4* ");
    });
}

TEST_F(PictureAccess, SelectsACellWhenAsked) {
    RunPainted(3, [](CTavrinSelMaskDlg& dialog) {
        const CAccessibleClient second(CellOf(dialog, 2));
        EXPECT_EQ(second.ActionOf(0), L"Select");
        EXPECT_EQ(second.ShortcutOf(0), L"2");
        EXPECT_EQ(second.DoDefaultAction(0), S_OK);
        EXPECT_TRUE(WaitForCells(dialog, L"c0 c1* c2 (none)- (none)- (none)- "));
        EXPECT_EQ(CAccessibleClient(CellOf(dialog, 3)).Select(0), S_OK);
        EXPECT_TRUE(WaitForCells(dialog, L"c0 c1 c2* (none)- (none)- (none)- "));
        EXPECT_STREQ(dialog.GetSelectedName(), L"c2");
    });
}

TEST_F(PictureAccess, OffersNothingInACellWithoutAChoice) {
    RunPainted(5, [](CTavrinSelMaskDlg& dialog) {
        const CAccessibleClient logo(CellOf(dialog, 5));
        EXPECT_EQ(logo.ActionOf(0), L"(none)");
        EXPECT_EQ(logo.DoDefaultAction(0), DISP_E_MEMBERNOTFOUND);
        EXPECT_EQ(logo.Select(0), S_FALSE);
    });
}

TEST_F(PictureAccess, ReportsTheSelection) {
    RunPainted(3, [](CTavrinSelMaskDlg& dialog) {
        {
            CAccessibleEvents events(CellOf(dialog, 2));
            dialog.SelectCell(2);
            EXPECT_EQ(events.Take(), (Events{"state 0", "selection 0"}));
            dialog.SelectCell(2);
            EXPECT_EQ(events.Take(), Events());
        }
        CAccessibleEvents events(CellOf(dialog, 2));
        dialog.SelectCell(1);
        EXPECT_EQ(events.Take(), Events{"state 0"});
    });
}

TEST_F(PictureAccess, NamesThePreview) {
    WriteSlides(1);
    CTavrinPreviewDlg preview;
    preview.SetName(L"c0_t");
    m_driver.Then([](HWND dialog) {
        const CAccessibleClient client(::GetDlgItem(dialog, IDC_PREVIEW_PICTURE));
        EXPECT_EQ(client.NameOf(0), L"c0_t");
        EXPECT_EQ(client.RoleOf(0), ROLE_SYSTEM_GRAPHIC);
        EXPECT_EQ(client.StateOf(0), 0U);
        EXPECT_EQ(client.ActionOf(0), L"(none)");
        PressCloseBox(dialog);
    });
    preview.DoModal();
}

TEST_F(PictureAccess, AnswersThatItIsGone) {
    std::unique_ptr<CAccessibleClient> client;
    RunPainted(1, [&](CTavrinSelMaskDlg& dialog) {
        client = std::make_unique<CAccessibleClient>(CellOf(dialog, 1));
    });
    EXPECT_EQ(client->DoDefaultAction(0), CO_E_OBJNOTCONNECTED);
}

}  // namespace
