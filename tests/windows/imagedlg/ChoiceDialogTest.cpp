// What the choice dialog shows and how it ends.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/windows/imagedlg/ChoiceFixture.h"
#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/FakeHost.h"
#include "tests/windows/support/HandleCount.h"

namespace {

constexpr COLORREF white = RGB(255, 255, 255);

class ChoiceDialog : public CChoiceFixture {
protected:
    // What the cells of a dialog with `count` choices show.
    std::string ShownWith(int count) {
        std::string shown;
        RunPainted(count, [&](CTavrinSelMaskDlg& dialog) { shown = ShownIn(dialog); });
        return shown;
    }

    // Runs a dialog with `count` choices; `step` ends it with IDOK. The code and the name chosen.
    std::pair<int, std::wstring> ChosenBy(int count, const CModalDriver::Step& step) {
        WriteSlides(count);
        CTavrinSelMaskDlg dialog;
        EXPECT_EQ(Run(dialog, count, step), IDOK);
        return {dialog.GetResult(), dialog.GetSelectedName().GetString()};
    }
};

using Chosen = std::pair<int, std::wstring>;

TEST_F(ChoiceDialog, ShowsOneChoice) {
    EXPECT_EQ(ShownWith(1), "0  .  ");
}

TEST_F(ChoiceDialog, ShowsTwoChoices) {
    EXPECT_EQ(ShownWith(2), "01 .. ");
}

TEST_F(ChoiceDialog, ShowsThreeChoices) {
    EXPECT_EQ(ShownWith(3), "012...");
}

TEST_F(ChoiceDialog, ShowsFourChoicesAsABlock) {
    EXPECT_EQ(ShownWith(4), "01 23 ");
}

TEST_F(ChoiceDialog, ShowsFiveChoicesAroundTheLogo) {
    EXPECT_EQ(ShownWith(5), "0123L4");
}

TEST_F(ChoiceDialog, ShowsSixChoices) {
    EXPECT_EQ(ShownWith(6), "012345");
}

TEST_F(ChoiceDialog, ClosesUnseenWithMoreThanSixChoices) {
    for (const int count : {7, 8}) {
        WriteSlides(count);
        CTavrinSelMaskDlg dialog;
        bool seen = false;
        EXPECT_EQ(Run(dialog, count, [&](HWND) { seen = true; }), IDCANCEL);
        PumpMessages();
        EXPECT_FALSE(seen);
        m_driver.Forget();
    }
}

TEST_F(ChoiceDialog, ClosesUnseenWithoutAChoice) {
    CTavrinSelMaskDlg dialog;
    bool seen = false;
    EXPECT_EQ(Run(dialog, 0, [&](HWND) { seen = true; }), IDCANCEL);
    EXPECT_FALSE(seen);
}

TEST_F(ChoiceDialog, IsWhite) {
    RunPainted(6, [](CTavrinSelMaskDlg& dialog) {
        const CClientPixels pixels(dialog);
        EXPECT_EQ(pixels.At(0, 0), white);
        EXPECT_EQ(pixels.At(pixels.Width() - 1, pixels.Height() - 1), white);
        EXPECT_EQ(pixels.At(pixels.Width() / 4, pixels.Height() - 5), white);
    });
}

TEST_F(ChoiceDialog, StartsWithTheFirstChoiceSelected) {
    for (const int count : {1, 2, 3, 4, 5, 6}) {
        EXPECT_EQ(ChosenBy(count, [](HWND window) { PressButton(window, IDOK); }), (Chosen{100, L"c0"}))
            << count;
    }
}

TEST_F(ChoiceDialog, EnterChoosesTheSelectedCell) {
    EXPECT_EQ(ChosenBy(2,
                       [](HWND window) {
                           Click(CellOf(window, 2));
                           EXPECT_TRUE(WaitForFrame(window, 2));
                           PressKey(window, VK_RETURN);
                       }),
              (Chosen{100, L"c1"}));
}

TEST_F(ChoiceDialog, ADigitSelectsTheCellWithItsNumber) {
    for (const unsigned count : {1U, 2U, 3U, 4U, 5U, 6U}) {
        for (int cell = 1; cell <= kChoiceCells; ++cell) {
            const int choice = GetCellContent(count, cell);
            EXPECT_EQ(ChosenBy(static_cast<int>(count),
                               [&](HWND window) {
                                   TypeCharacter(window, static_cast<wchar_t>(L'0' + cell));
                                   PressKey(window, VK_RETURN);
                               }),
                      (Chosen{100, L"c" + std::to_wstring(std::max(choice, 0))}))
                << count << " " << cell;
        }
    }
}

TEST_F(ChoiceDialog, OtherDigitsAndLettersSelectNothing) {
    EXPECT_EQ(ChosenBy(6,
                       [](HWND window) {
                           for (const wchar_t character : {L'3', L'0', L'7', L'9', L'a', L' '}) {
                               TypeCharacter(window, character);
                           }
                           PressKey(window, VK_RETURN);
                       }),
              (Chosen{100, L"c2"}));
}

TEST_F(ChoiceDialog, OkChoosesTheSelectedCell) {
    EXPECT_EQ(ChosenBy(6,
                       [](HWND window) {
                           Click(CellOf(window, 5));
                           EXPECT_TRUE(WaitForFrame(window, 5));
                           Click(GetDlgItem(window, IDOK));
                       }),
              (Chosen{100, L"c4"}));
}

// With one row the buttons stand where cells of the other row are.
TEST_F(ChoiceDialog, TheButtonsTakeTheirClicksForEveryCount) {
    for (const int count : {1, 2, 3, 4, 5, 6}) {
        WriteSlides(count);
        for (const int button : {IDOK, IDCANCEL}) {
            CTavrinSelMaskDlg dialog;
            EXPECT_EQ(Run(dialog, count, [&](HWND window) { Click(GetDlgItem(window, button)); }), button)
                << count;
        }
    }
}

TEST_F(ChoiceDialog, TabGoesFromOkToCancelForEveryCount) {
    for (const int count : {1, 4, 6}) {
        WriteSlides(count);
        CTavrinSelMaskDlg dialog;
        Run(dialog, count, [&](HWND window) {
            const HWND ok = GetDlgItem(window, IDOK);
            EXPECT_EQ(GetFocus(), ok) << count;
            EXPECT_EQ(GetNextDlgTabItem(window, ok, FALSE), GetDlgItem(window, IDCANCEL)) << count;
            PressCloseBox(window);
        });
    }
}

TEST_F(ChoiceDialog, ReplaceAnswersWithItsOwnCode) {
    EXPECT_EQ(ChosenBy(3,
                       [](HWND window) {
                           Click(CellOf(window, 3));
                           EXPECT_TRUE(WaitForFrame(window, 3));
                           PressButton(window, IDC_CHOICE_REPLACE);
                       }),
              (Chosen{1000, L"c2"}));
}

TEST_F(ChoiceDialog, ReplaceHasTheCallersCaptionAndIsNotShown) {
    WriteSlides(1);
    CTavrinSelMaskDlg dialog;
    Run(dialog, 1, [&](HWND window) {
        wchar_t caption[50] = {};
        GetDlgItemTextW(window, IDC_CHOICE_REPLACE, caption, 50);
        EXPECT_STREQ(caption, L"Other");
        EXPECT_FALSE(IsWindowVisible(GetDlgItem(window, IDC_CHOICE_REPLACE)));
        PressCloseBox(window);
    });
}

TEST_F(ChoiceDialog, CancelEscapeAndTheCloseBoxEndWithCancel) {
    WriteSlides(2);
    const std::vector<CModalDriver::Step> ways = {[](HWND window) { PressButton(window, IDCANCEL); },
                                                  [](HWND window) { PressKey(window, VK_ESCAPE); },
                                                  [](HWND window) { PressCloseBox(window); }};
    for (const CModalDriver::Step& way : ways) {
        CTavrinSelMaskDlg dialog;
        EXPECT_EQ(Run(dialog, 2, way), IDCANCEL);
    }
}

TEST_F(ChoiceDialog, ADoubleClickChoosesEveryCellThatShowsAChoice) {
    for (const unsigned count : {1U, 2U, 3U, 4U, 5U, 6U}) {
        for (int cell = 1; cell <= kChoiceCells; ++cell) {
            const int choice = GetCellContent(count, cell);
            if (choice < 0) {
                continue;
            }
            EXPECT_EQ(
                ChosenBy(static_cast<int>(count), [&](HWND window) { DoubleClick(CellOf(window, cell)); }),
                (Chosen{100, L"c" + std::to_wstring(choice)}))
                << count << " " << cell;
        }
    }
}

TEST_F(ChoiceDialog, ADoubleClickOnTheLogoDoesNothing) {
    EXPECT_EQ(ChosenBy(5,
                       [](HWND window) {
                           DoubleClick(CellOf(window, 5));
                           // The next click arrives after both.
                           Click(CellOf(window, 6));
                           EXPECT_TRUE(WaitForFrame(window, 6));
                           Click(CellOf(window, 5));
                           Click(GetDlgItem(window, IDOK));
                       }),
              (Chosen{100, L"c4"}));
}

// With four choices cells 3 and 6 lie outside the window, but keep their controls.
TEST_F(ChoiceDialog, ACellOutsideTheSelectionIgnoresItsNotifications) {
    EXPECT_EQ(ChosenBy(4,
                       [](HWND window) {
                           for (const int cell : {3, 6}) {
                               for (const int code : {STN_CLICKED, STN_DBLCLK}) {
                                   SendMessageW(
                                       window, WM_COMMAND,
                                       static_cast<WPARAM>(MAKELONG(IDC_CHOICE_CELL1 + cell - 1, code)),
                                       reinterpret_cast<LPARAM>(CellOf(window, cell)));
                               }
                           }
                           EXPECT_EQ(FramesIn(window, white)[0], 'B');
                           PressButton(window, IDOK);
                       }),
              (Chosen{100, L"c0"}));
}

TEST_F(ChoiceDialog, AnEmptyCellOfTheTopRowCanBeSelectedAndHasNoName) {
    WriteSlides(1);
    CTavrinSelMaskDlg dialog;
    Fill(dialog, 1);
    EXPECT_TRUE(dialog.IsCellSelectable(3));
    dialog.SelectCell(3);
    EXPECT_EQ(dialog.GetSelectedName(), L"");
    EXPECT_FALSE(dialog.IsCellSelectable(4));
    dialog.SelectCell(1);
    dialog.SelectCell(4);
    EXPECT_EQ(dialog.GetSelectedName(), L"c0");
}

TEST_F(ChoiceDialog, ActivatingACellSelectsItAndEndsTheDialog) {
    EXPECT_EQ(ChosenBy(5,
                       [](HWND window) {
                           SendMessageW(window, WM_COMMAND, MAKELONG(IDC_CHOICE_CELL6, STN_DBLCLK),
                                        reinterpret_cast<LPARAM>(CellOf(window, 6)));
                       }),
              (Chosen{100, L"c4"}));
}

TEST_F(ChoiceDialog, ActivatingTheLogoEndsNothing) {
    RunPainted(5, [](CTavrinSelMaskDlg& dialog) {
        dialog.ActivateCell(5);
        EXPECT_EQ(dialog.GetResult(), 0);
        EXPECT_EQ(dialog.GetSelectedName(), L"c0");
    });
}

TEST_F(ChoiceDialog, TakesOnlyNamesThatHaveASlide) {
    WriteSlide(0);
    WriteSlide(1, L"_t_3d.png");
    CTavrinSelMaskDlg dialog;
    dialog.SetArguments(L"", 0);
    EXPECT_TRUE(dialog.AddChoice(L"c0"));
    EXPECT_TRUE(dialog.AddChoice(L"c1"));
    EXPECT_FALSE(dialog.AddChoice(L"c2"));
    EXPECT_EQ(dialog.GetCount(), 2U);
    EXPECT_EQ(fakeHost.searched, (std::vector<std::wstring>{L"c0_t.png", L"c1_t.png", L"c1_t_3d.png",
                                                            L"c2_t.png", L"c2_t_3d.png"}));
}

TEST_F(ChoiceDialog, TheFlagLeavesOutSlidesInSpaceWhateverItsValue) {
    WriteSlide(0);
    WriteSlide(1, L"_t_3d.png");
    for (const int flag : {1, 2, -1}) {
        CTavrinSelMaskDlg dialog;
        dialog.SetArguments(L"", flag);
        EXPECT_TRUE(dialog.AddChoice(L"c0"));
        EXPECT_FALSE(dialog.AddChoice(L"c1"));
        EXPECT_EQ(dialog.GetCount(), 1U);
    }
}

TEST_F(ChoiceDialog, PrefersTheFlatSlide) {
    WriteSlide(0);
    WriteSlide(0, L"_t_3d.png");
    WriteSlide(1, L"_t_3d.png");
    CTavrinSelMaskDlg dialog;
    EXPECT_EQ(dialog.GetSlidePath(L"c0"), m_folder.Path(L"c0_t.png").c_str());
    EXPECT_EQ(dialog.GetSlidePath(L"c1"), m_folder.Path(L"c1_t_3d.png").c_str());
}

// The flag decides what becomes a choice; what is shown for one is whatever there is.
TEST_F(ChoiceDialog, ShowsASlideInSpaceWhenTheFlatOneVanished) {
    WriteSlide(0);
    WriteSlide(0, L"_t_3d.png");
    CTavrinSelMaskDlg dialog;
    dialog.SetArguments(L"", 1);
    ASSERT_TRUE(dialog.AddChoice(L"c0"));
    DeleteFileW(m_folder.Path(L"c0_t.png").c_str());
    EXPECT_EQ(dialog.GetSlidePath(L"c0"), m_folder.Path(L"c0_t_3d.png").c_str());
}

TEST_F(ChoiceDialog, AnEmptyNameIsShownByTheStandIn) {
    m_folder.Write(L"_t.png", "");
    m_folder.Write(L"empty.png", "");
    CTavrinSelMaskDlg dialog;
    EXPECT_EQ(dialog.GetSlidePath(L""), m_folder.Path(L"empty.png").c_str());
}

TEST_F(ChoiceDialog, TheStandInIsShownForASlideThatVanished) {
    WriteSlides(2);
    CTavrinSelMaskDlg dialog;
    std::string shown;
    m_driver.Then([&](HWND window) {
        EXPECT_TRUE(WaitForFrame(window, 1));
        shown = ShownIn(window);
        PressButton(window, IDOK);
    });
    dialog.SetArguments(L"", 0);
    dialog.AddChoice(L"c0");
    dialog.AddChoice(L"c1");
    DeleteFileW(m_folder.Path(L"c0_t.png").c_str());
    dialog.LoadSlides();
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(shown, "E1 .. ");
    EXPECT_EQ(dialog.GetSelectedName(), L"c0");
}

TEST_F(ChoiceDialog, AMissingStandInIsReportedForEachCellBeforeTheDialogShows) {
    WriteSlides(3);
    DeleteFileW(m_folder.Path(L"empty.png").c_str());
    CTavrinSelMaskDlg dialog;
    dialog.SetArguments(L"", 0);
    for (const wchar_t* name : {L"c0", L"c1", L"c2"}) {
        dialog.AddChoice(name);
    }
    DeleteFileW(m_folder.Path(L"c0_t.png").c_str());
    DeleteFileW(m_folder.Path(L"c2_t.png").c_str());
    m_driver.ThenPressOk();
    m_driver.ThenPressOk();
    dialog.LoadSlides();
    ASSERT_EQ(m_driver.messages.size(), 2U);
    for (const MessageBoxSeen& message : m_driver.messages) {
        EXPECT_EQ(message.text, L"Missing slide file! Unable to load correctly!");
        EXPECT_EQ(message.caption, L"Error!");
        EXPECT_EQ(message.buttons, 1);
        EXPECT_EQ(message.owner, nullptr);
    }
    std::string shown;
    m_driver.Then([&](HWND window) {
        EXPECT_TRUE(WaitForFrame(window, 1));
        shown = ShownIn(window);
        PressButton(window, IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(shown, ".1....");
}

TEST_F(ChoiceDialog, AMissingStandInIsReportedOverTheOpenDialog) {
    WriteSlides(1);
    DeleteFileW(m_folder.Path(L"empty.png").c_str());
    CTavrinSelMaskDlg dialog;
    Fill(dialog, 1);
    HWND shownDialog = nullptr;
    m_driver.Then([&](HWND window) {
        shownDialog = window;
        DeleteFileW(m_folder.Path(L"c0_t.png").c_str());
        m_driver.ThenPressOk();
        dialog.RefreshSlides();
        PressButton(window, IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    ASSERT_EQ(m_driver.messages.size(), 1U);
    EXPECT_EQ(m_driver.messages[0].owner, shownDialog);
}

TEST_F(ChoiceDialog, AMissingLogoLeavesItsCellEmptyWithoutAMessage) {
    WriteSlides(5);
    DeleteFileW(m_folder.Path(L"logo.png").c_str());
    CTavrinSelMaskDlg dialog;
    EXPECT_EQ(dialog.GetLogoPath(), L"");
    std::string shown;
    Run(dialog, 5, [&](HWND window) {
        EXPECT_TRUE(WaitForFrame(window, 1));
        shown = ShownIn(window);
        PressCloseBox(window);
    });
    EXPECT_EQ(shown, "0123.4");
    EXPECT_EQ(m_driver.StepsLeft(), 0U);
}

TEST_F(ChoiceDialog, RefreshingShowsTheSlidesAsTheyAreNowAndSelectsTheFirst) {
    WriteSlides(2);
    CTavrinSelMaskDlg dialog;
    std::string shown;
    Run(dialog, 2, [&](HWND window) {
        Click(CellOf(window, 2));
        EXPECT_TRUE(WaitForFrame(window, 2));
        CopyFileW(m_folder.Path(L"c1_t.png").c_str(), m_folder.Path(L"c0_t.png").c_str(), FALSE);
        dialog.RefreshSlides();
        EXPECT_TRUE(WaitForFrame(window, 1));
        shown = ShownIn(window);
        PressButton(window, IDOK);
    });
    EXPECT_EQ(shown, "11 .. ");
    EXPECT_EQ(dialog.GetSelectedName(), L"c0");
}

TEST_F(ChoiceDialog, EnablesAndDisablesAControlByItsNumber) {
    WriteSlides(1);
    CTavrinSelMaskDlg dialog;
    Run(dialog, 1, [&](HWND window) {
        dialog.EnableItem(IDOK, FALSE);
        EXPECT_FALSE(IsWindowEnabled(GetDlgItem(window, IDOK)));
        dialog.EnableItem(IDOK, TRUE);
        EXPECT_TRUE(IsWindowEnabled(GetDlgItem(window, IDOK)));
        dialog.EnableItem(4711, FALSE);
        PressCloseBox(window);
    });
}

TEST_F(ChoiceDialog, TakesANameOfAnyLength) {
    m_folder.Write(L"short.png", "");
    fakeHost.findFile = [&](const wchar_t*, wchar_t* result, size_t) {
        wcscpy(result, m_folder.Path(L"short.png").c_str());
        return FakeHost::RtNorm;
    };
    for (const size_t length : {253U, 254U, 255U, 256U, 1000U, 40000U}) {
        const std::wstring name(length, L'n');
        CTavrinSelMaskDlg dialog;
        EXPECT_TRUE(dialog.AddChoice(name.c_str()));
        EXPECT_EQ(fakeHost.searched.back(), name + L"_t.png");
        dialog.LoadSlides();
        EXPECT_EQ(dialog.GetSelectedName(), name.c_str());
    }
}

TEST_F(ChoiceDialog, LeavesNoHandleAndNoBlockBehind) {
    const auto cycle = [&](int count) {
        WriteSlides(count);
        CTavrinSelMaskDlg dialog;
        m_driver.Forget();
        Run(dialog, count, [&](HWND window) {
            PumpMessages();
            SendMessageW(window, WM_COMMAND, MAKELONG(IDC_CHOICE_CELL1 + 1, STN_CLICKED), 0);
            dialog.RefreshSlides();
            PressButton(window, count % 2 == 0 ? IDOK : IDCANCEL);
        });
        dialog.GetSelectedName();
        m_driver.Forget();
        fakeHost.searched = {};
    };
    for (const int count : {1, 4, 5, 6}) {
        cycle(count);
    }
    const ProcessHoldings before = CountHoldings();
    for (int round = 0; round < 40; ++round) {
        cycle(1 + round % 7);
    }
    EXPECT_EQ(CountHoldings(), before);
}

}  // namespace
