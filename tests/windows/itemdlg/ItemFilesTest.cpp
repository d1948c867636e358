// What the item dialog reads from an item's files, and what OK makes of them.
#include <memory>

#include "tests/windows/itemdlg/BreakingFile.h"
#include "tests/windows/itemdlg/FileLock.h"
#include "tests/windows/itemdlg/ItemDialogFixture.h"

namespace {

class ItemFiles : public ItemDialogFixture {
protected:
    void SetUp() override {
        ItemDialogFixture::SetUp();
        OfferTextModule();
    }

    // The rows that a parameter block gives.
    std::wstring RowsOf(const std::string& block, double scale = 1.0, int mode = 0) {
        WriteItem(block);
        std::wstring rows;
        InDialog([&](HWND, CPropertyGrid& grid) { rows = Rows(grid); }, IDCANCEL);
        Run(scale, mode);
        return rows;
    }

    // The block of a rewritten file, without the carriage returns.
    std::string BlockOf(const wchar_t* name) {
        std::string text = folder.Read(name);
        std::erase(text, '\r');
        const size_t start = text.find("VAR\n") + 4;
        return text.substr(start, text.find("END_VAR\n") - start);
    }

    std::string Working() { return BlockOf(L"item_TMP.TXT"); }
    std::string Template() { return BlockOf(L"item.TXT"); }
};

TEST_F(ItemFiles, EachKindHasItsRow) {
    EXPECT_EQ(RowsOf("$1 = \"<<1501>>\"D 900\n$2 = \"<<1502>>\"I 2\n$3 = \"<<1503>>\"R 0.08\n"),
              L"Larghezza anta = U2:900.0000 *\nAltezza anta = 2 *\nSpessore muro = 0.08 *\n");
}

TEST_F(ItemFiles, OnlyDistancesAndRealsAreScaled) {
    EXPECT_EQ(RowsOf("$1 = \"<<1501>>\"D 0.9\n$2 = \"<<1502>>\"I 3\n$3 = \"<<1503>>\"R 2\n", 1000),
              L"Larghezza anta = U2:900.0000 *\nAltezza anta = 3 *\nSpessore muro = 2000 *\n");
}

TEST_F(ItemFiles, TheReadOnlyMarkCountsInModeOneAloneAndIsNeverShown) {
    EXPECT_EQ(RowsOf("$1 = \"<<1501>>%\"R 1\n", 1, 1), L"Larghezza anta = 1\n");
    EXPECT_EQ(RowsOf("$1 = \"<<1501>>%\"R 1\n", 1, 0), L"Larghezza anta = 1 *\n");
    EXPECT_EQ(RowsOf("$1 = \"<<1501>>%\"D 1\n", 1, 1), L"Larghezza anta = U2:1.0000\n");
    EXPECT_EQ(RowsOf("$1 = \"<<1501>>%\"I 1\n", 1, 2), L"Larghezza anta = 1 *\n");
    EXPECT_EQ(RowsOf("$1 = \"<<1501>>\"I 1\n", 1, 1), L"Larghezza anta = 1 *\n");
}

TEST_F(ItemFiles, ALabelKeepsWhatStandsAroundItsPlaceholder) {
    EXPECT_EQ(RowsOf("$1 = \"Leaves: <<1507>> (max 2)\"I 2\n$2 = \"Frame depth\"R 1\n"),
              L"Leaves: Numero ante (max 2) = 2 *\nFrame depth = 1 *\n");
}

TEST_F(ItemFiles, BlanksAreOptionalAndANumberMayBeMissing) {
    EXPECT_EQ(RowsOf("$7=\"Width\"R5\n$ = \"Height\"R 5\n"), L"Width = 5 *\nHeight = 5 *\n");
}

TEST_F(ItemFiles, ATextThatIsNoNumberIsZeroAndWholeNumbersRoundDown) {
    EXPECT_EQ(RowsOf("$1 = \"a\"I abc\n$2 = \"b\"R abc\n$3 = \"c\"D abc\n$4 = \"d\"I 2.9\n$5 = \"e\"I -2.1\n"
                     "$6 = \"f\"I 1e300\n$7 = \"g\"I -1e300\n"),
              L"a = 0 *\nb = 0 *\nc = U2:0.0000 *\nd = 2 *\ne = -3 *\nf = 2147483647 *\ng = -2147483648 *\n");
}

TEST_F(ItemFiles, AFileWithoutABlockHasATitleAndNoRows) {
    folder.Write(L"item_TMP.TXT", "x\nTitle\n$1 = \"a\"R 1\nvar\n VAR\n$2 = \"b\"R 1\n");
    InDialog(
        [](HWND dialog, CPropertyGrid& grid) {
            EXPECT_EQ(TextOf(dialog), L"Title");
            EXPECT_EQ(grid.GetItemCount(), 0U);
            EXPECT_EQ(grid.GetSectionCount(), 1U);
        },
        IDCANCEL);
    Run();
}

TEST_F(ItemFiles, SeveralBlocksFollowEachOther) {
    EXPECT_EQ(RowsOf("$1 = \"a\"R 1\nEND_VAR\n$2 = \"b\"R 2\nEND_VAR\nVAR\nVAR\n$3 = \"c\"R 3\n"),
              L"a = 1 *\nc = 3 *\n");
}

TEST_F(ItemFiles, ALowerCaseTypeLetterIsReportedOnceForEachLine) {
    WriteItem("$7 = \"Width\"d 10\n$8 = \"Height\"i 10\n$9 = \"<<1501>>\"R 1\n");
    driver.ThenPressOk();
    driver.ThenPressOk();
    InDialog([&](HWND dialog, CPropertyGrid& grid) {
        EXPECT_EQ(Rows(grid), L"Larghezza anta = 1 *\n");
        for (const MessageBoxSeen& message : driver.messages) {
            EXPECT_EQ(message.text, L"Warning! Found invalid type code.");
            EXPECT_EQ(message.caption, L"Warning!");
            EXPECT_EQ(message.buttons, 1);
            EXPECT_EQ(message.owner, dialog);
        }
    });
    Run();
    EXPECT_EQ(Working(), "#7 = \n#8 = \n#9 = 1\n");
    EXPECT_EQ(Template(), "$7 = \"Width\"d 10\n$8 = \"Height\"i 10\n$9 = \"<<1501>>\"R1\n");
}

TEST_F(ItemFiles, APlaceholderTooLargeForANumberGivesAnEmptyText) {
    EXPECT_EQ(RowsOf("$1 = \"a<<99999999999>>b\"R 1\n$2 = \"c<<67037>>d\"R 1\n"), L"ab = 1 *\ncd = 1 *\n");
}

TEST_F(ItemFiles, OkWritesAssignmentsAndNewDefaults) {
    WriteItem("$1 = \"<<1501>>\"D 900\n$3 = \"<<1503>>\"I 2\nfree line\n");
    PressInDialog(IDOK);
    EXPECT_EQ(Run(), IDOK);
    EXPECT_EQ(folder.Read(L"item_TMP.TXT"),
              "first line\r\nItem title\r\nVAR\r\n#1 = 900\r\n$3 = 2\r\nfree line\r\nEND_VAR\r\n");
    EXPECT_EQ(folder.Read(L"item.TXT"),
              "first line\r\nItem title\r\nVAR\r\n$1 = \"<<1501>>\"D900\r\n$3 = \"<<1503>>\"I2\r\nfree "
              "line\r\nEND_VAR\r\n");
}

TEST_F(ItemFiles, TheFilesHoldUnscaledValues) {
    WriteItem("$1 = \"<<1501>>\"D 0.9\n");
    PressInDialog(IDOK);
    Run(1000);
    EXPECT_EQ(Working(), "#1 = 0.9\n");
    EXPECT_EQ(Template(), "$1 = \"<<1501>>\"D0.9\n");
}

TEST_F(ItemFiles, SixDigitsAreWritten) {
    WriteItem("$1 = \"<<1501>>\"R 1234567.891\n$2 = \"<<1502>>\"R 0.0000001\n");
    PressInDialog(IDOK);
    Run();
    EXPECT_EQ(Working(), "#1 = 1.23457e+06\n#2 = 1e-07\n");
}

TEST_F(ItemFiles, ANewValueReachesBothFiles) {
    WriteItem("$1 = \"<<1501>>\"R 1\n$2 = \"<<1502>>\"I 2\n$3 = \"<<1503>>\"D 3\n");
    InDialog([](HWND, CPropertyGrid& grid) {
        grid.SetItemValue(0, 1.5);
        grid.SetItemValue(1, -7);
        ICustomItem* distance = nullptr;
        ASSERT_TRUE(grid.GetItemValue(2, distance));
        EXPECT_TRUE(distance->SetStringValue(L"33.25"));
    });
    Run();
    EXPECT_EQ(Working(), "#1 = 1.5\n$2 = -7\n#3 = 33.25\n");
    EXPECT_EQ(Template(), "$1 = \"<<1501>>\"R1.5\n$2 = \"<<1502>>\"I-7\n$3 = \"<<1503>>\"D33.25\n");
}

TEST_F(ItemFiles, ANumberThatTheTemplateLacksIsSkipped) {
    WriteItem("$1 = \"<<1501>>\"R 1\n$2 = \"<<1502>>\"R 2\n");
    folder.Write(L"item.TXT",
                 "VAR\n$2 = \"<<1502>>\"R 0\n$02 = \"other\"R 0\nEND_VAR\n$1 = \"outside\"R 0\n");
    PressInDialog(IDOK);
    Run();
    EXPECT_EQ(folder.Read(L"item.TXT"),
              "VAR\r\n$2 = \"<<1502>>\"R2\r\n$02 = \"other\"R 0\r\nEND_VAR\r\n$1 = \"outside\"R 0\r\n");
}

TEST_F(ItemFiles, OfTwoTemplateLinesWithOneNumberTheSecondIsRewritten) {
    WriteItem("$2 = \"<<1502>>\"R 2\n");
    folder.Write(L"item.TXT", "VAR\n$2 = \"<<1502>>\"R 0\n$2 = \"<<1502>>\"R 1\nEND_VAR\n");
    PressInDialog(IDOK);
    Run();
    EXPECT_EQ(Template(), "$2 = \"<<1502>>\"R 0\n$2 = \"<<1502>>\"R2\n");
}

TEST_F(ItemFiles, ALabelWithoutAPlaceholderComesBackMangled) {
    WriteItem("$1 = \"Width\"R 1\n");
    PressInDialog(IDOK);
    Run();
    EXPECT_EQ(Template(), "$1 = \"<<0>>idth\"R1\n");
}

TEST_F(ItemFiles, OfTwoParametersWithOneLabelTheSecondHasNoRowAndKeepsItsValue) {
    WriteItem("$1 = \"<<1501>>\"R 1\n$2 = \"<<1501>>\"R 2\n$3 = \"<<1501>>\"I 3\n$4 = \"<<1501>>\"D 4\n");
    InDialog([](HWND, CPropertyGrid& grid) {
        EXPECT_EQ(Rows(grid), L"Larghezza anta = 1 *\n");
        grid.SetItemValue(0, 10.0);
    });
    Run();
    EXPECT_EQ(Working(), "#1 = 10\n#2 = 2\n$3 = 3\n#4 = 4\n");
}

TEST_F(ItemFiles, AnUndefinedRowWritesTheValueThatItWasReadWith) {
    WriteItem("$1 = \"<<1501>>\"R 1.5\n$2 = \"<<1502>>\"I 2\n");
    InDialog([](HWND, CPropertyGrid& grid) {
        grid.SetItemUndefined(0, true);
        grid.SetItemUndefined(1, true);
    });
    Run(2);
    EXPECT_EQ(Working(), "#1 = 1.5\n$2 = 2\n");
}

TEST_F(ItemFiles, AWorkingFileThatVanishedIsReportedAndTheTemplateIsStillUpdated) {
    WriteItem("$1 = \"<<1501>>\"R 1\n");
    InDialog([&](HWND, CPropertyGrid&) { ::DeleteFileW(folder.Path(L"item_TMP.TXT").c_str()); });
    driver.ThenPressOk();
    EXPECT_EQ(Run(), IDOK);
    ASSERT_EQ(driver.messages.size(), 1U);
    EXPECT_EQ(driver.messages[0].text, L"File not found!");
    EXPECT_EQ(driver.messages[0].caption, L"Error!");
    EXPECT_EQ(Template(), "$1 = \"<<1501>>\"R1\n");
    EXPECT_EQ(folder.Read(L"item_TMP.TXT"), "(no file)");
}

TEST_F(ItemFiles, AMissingTemplateIsReportedAndTheWorkingFileIsWritten) {
    WriteItem("$1 = \"<<1501>>\"R 1\n");
    ::DeleteFileW(folder.Path(L"item.TXT").c_str());
    PressInDialog(IDOK);
    driver.ThenPressOk();
    EXPECT_EQ(Run(), IDOK);
    ASSERT_EQ(driver.messages.size(), 1U);
    EXPECT_EQ(driver.messages[0].text, L"File not found!");
    EXPECT_EQ(Working(), "#1 = 1\n");
}

// The host loses a file between the module's search before reading and its search before writing.
TEST_F(ItemFiles, AFileThatVanishesBeforeWritingIsReported) {
    WriteItem("$1 = \"<<1501>>\"R 1\n");
    int searches = 0;
    InDialog([&](HWND, CPropertyGrid&) {
        fakeHost.findFile = [&](const wchar_t* name, wchar_t* result, size_t) {
            if (++searches == 2 || searches == 4) {
                return 0;
            }
            std::wcscpy(result, folder.Path(name).c_str());
            return FakeHost::RtNorm;
        };
    });
    driver.ThenPressOk();
    driver.ThenPressOk();
    EXPECT_EQ(Run(), IDOK);
    ASSERT_EQ(driver.messages.size(), 2U);
    for (const MessageBoxSeen& message : driver.messages) {
        EXPECT_EQ(message.text, L"File not found!");
        EXPECT_EQ(message.caption, L"Error!");
    }
    EXPECT_EQ(Working(), "$1 = \"<<1501>>\"R 1\n");
    EXPECT_EQ(Template(), "$1 = \"<<1501>>\"R 1\n");
}

TEST_F(ItemFiles, AWorkingFileThatCannotBeOpenedIsReportedAndTheDialogStaysOpen) {
    WriteItem("$1 = \"<<1501>>\"R 1\n");
    const CFileLock lock(folder.Path(L"item_TMP.TXT"));
    driver.ThenPressOk();
    InDialog([](HWND, CPropertyGrid& grid) { EXPECT_EQ(grid.GetItemCount(), 0U); }, IDCANCEL);
    EXPECT_EQ(Run(), IDCANCEL);
    ASSERT_EQ(driver.messages.size(), 1U);
    EXPECT_EQ(driver.messages[0].text, L"Error - unable to open file");
    EXPECT_EQ(driver.messages[0].caption, L"Error");
    EXPECT_EQ(driver.messages[0].buttons, 1);
}

TEST_F(ItemFiles, AFileThatCannotBeReadOrWrittenAtOkIsReportedAndTheDialogCloses) {
    WriteItem("$1 = \"<<1501>>\"R 1\n");
    const std::string before = folder.Read(L"item_TMP.TXT");
    std::unique_ptr<CFileLock> lock;
    InDialog([&](HWND, CPropertyGrid&) { lock = std::make_unique<CFileLock>(folder.Path(L"item_TMP.TXT")); });
    driver.ThenPressOk();
    driver.ThenPressOk();
    EXPECT_EQ(Run(), IDOK);
    lock.reset();
    ASSERT_EQ(driver.messages.size(), 2U);
    EXPECT_EQ(driver.messages[0].text, L"Error - unable to open file");
    EXPECT_EQ(driver.messages[0].caption, L"Error");
    EXPECT_EQ(driver.messages[1].text, L"Error - unable to write file");
    EXPECT_EQ(driver.messages[1].caption, L"Error");
    EXPECT_EQ(folder.Read(L"item_TMP.TXT"), before);
    EXPECT_EQ(Template(), "$1 = \"<<1501>>\"R1\n");
}

// The two files are searched for twice each, before reading and before writing: the working file first.
TEST_F(ItemFiles, AFileIsCutWhereReadingFailed) {
    const std::string cut = "first line\r\nItem title\r\nVAR\r\n$1 = \"<<1501>>\"R 1\r\ncut he";
    for (const int breaking : {1, 3}) {
        SCOPED_TRACE(breaking);
        WriteItem("$1 = \"<<1501>>\"R 1\nafter\n");
        driver.Forget();
        std::unique_ptr<CBreakingFile> file;
        int searches = 0;
        InDialog([&](HWND, CPropertyGrid&) {
            file = std::make_unique<CBreakingFile>(cut);
            fakeHost.findFile = [&](const wchar_t* name, wchar_t* result, size_t) {
                std::wcscpy(result,
                            ++searches == breaking ? CBreakingFile::Path() : folder.Path(name).c_str());
                return FakeHost::RtNorm;
            };
        });
        driver.ThenPressOk();
        EXPECT_EQ(Run(), IDOK);
        fakeHost.findFile = nullptr;
        ASSERT_EQ(driver.messages.size(), 1U);
        EXPECT_EQ(driver.messages[0].text, L"Error - unable to open file");
        EXPECT_EQ(driver.messages[0].caption, L"Error");
        const std::string assigned = "first line\r\nItem title\r\nVAR\r\n#1 = 1\r\n";
        const std::string updated = "first line\r\nItem title\r\nVAR\r\n$1 = \"<<1501>>\"R1\r\n";
        const std::string rest = "after\r\nEND_VAR\r\n";
        EXPECT_EQ(folder.Read(L"item_TMP.TXT"), breaking == 1 ? assigned : assigned + rest);
        EXPECT_EQ(folder.Read(L"item.TXT"), breaking == 3 ? updated : updated + rest);
    }
}

TEST_F(ItemFiles, BytesThatMeanNothingComeBackAsTheyWere) {
    std::string bytes;
    for (int byte = 0x80; byte < 0x100; ++byte) {
        bytes += static_cast<char>(byte);
    }
    WriteItem("$1 = \"<<1501>>\"R 1\n" + bytes + "\nlone \r return, mark \x1A, tab\t\n");
    PressInDialog(IDOK);
    Run();
    const std::string expected = "first line\r\nItem title\r\nVAR\r\n#1 = 1\r\n" + bytes +
                                 "\r\nlone \r return, mark \x1A, tab\t\r\nEND_VAR\r\n";
    EXPECT_EQ(folder.Read(L"item_TMP.TXT"), expected);
}

TEST_F(ItemFiles, ALongLineDoesNotDisturbItsNeighbours) {
    const std::string longLabel(1 << 20, 'x');
    WriteItem("$1 = \"<<1501>>\"R 1\n" + longLabel + "\n$2 = \"" + longLabel +
              "<<1502>>\"R 2\n$3 = \"<<1503>>\"R 3\n");
    InDialog([](HWND, CPropertyGrid& grid) { EXPECT_EQ(grid.GetItemCount(), 3U); });
    Run();
    EXPECT_EQ(Working(), "#1 = 1\n" + longLabel + "\n#2 = 2\n#3 = 3\n");
}

}  // namespace
