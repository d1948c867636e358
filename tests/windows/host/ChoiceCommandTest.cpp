// tavrinselmask from its arguments to its result.
#include <afxwin.h>
#include <gtest/gtest.h>

#include <array>
#include <stdexcept>

#include "host/Commands.h"
#include "res/resource.h"
#include "tests/windows/host/ProcessHeap.h"
#include "tests/windows/support/Arguments.h"
#include "tests/windows/support/Bitmap.h"
#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/FakeHost.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/ModalDriver.h"
#include "tests/windows/support/NoGdiPlus.h"
#include "tests/windows/support/TempFolder.h"
#include "tests/windows/support/TextModule.h"

using namespace tavrin::host;

namespace {

using Results = std::vector<std::string>;

class ChoiceCommand : public testing::Test {
protected:
    void SetUp() override {
        fakeHost = {};
        fakeHost.searchFolders = {m_folder.Path(L"")};
    }

    void WriteSlide(const std::wstring& file) const {
        m_folder.Write(file, BitmapFile(4, 4, std::vector<unsigned>(16, 0x3060C0)));
    }

    // What the function returns and sets for these arguments, while `step` acts on the dialog.
    int Run(CArguments& arguments, const CModalDriver::Step& step) {
        m_driver.Forget();
        fakeHost.results.clear();
        fakeHost.arguments = arguments.List();
        m_driver.Then(step);
        return RunChoiceDialog();
    }

    static CModalDriver::Step Press(int button) {
        return [button](HWND dialog) { PressButton(dialog, button); };
    }

    CTempFolder m_folder;
    CModalDriver m_driver;
};

HWND CellOf(HWND dialog, int cell) {
    return GetDlgItem(dialog, IDC_CHOICE_CELL1 + cell - 1);
}

// As the cell notifies the dialog of a click or a double-click.
void Notify(HWND dialog, int cell, int code) {
    PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(MAKELONG(IDC_CHOICE_CELL1 + cell - 1, code)),
                 reinterpret_cast<LPARAM>(CellOf(dialog, cell)));
}

TEST_F(ChoiceCommand, WithoutArgumentsSetsNoResultAndOpensNothing) {
    CArguments none;
    EXPECT_EQ(Run(none, Press(IDOK)), 0);
    EXPECT_TRUE(fakeHost.results.empty());
    EXPECT_TRUE(fakeHost.searched.empty());
    EXPECT_EQ(m_driver.StepsLeft(), 1U);
}

TEST_F(ChoiceCommand, OkAnswersAHundredAndTheName) {
    WriteSlide(L"A_t.png");
    CArguments list;
    list.String(L"Replace").Short(0).String(L"A");
    EXPECT_EQ(Run(list, Press(IDOK)), 0);
    EXPECT_EQ(fakeHost.results, Results{"(100 \"A\")"});
}

TEST_F(ChoiceCommand, EnterAnswersAHundred) {
    WriteSlide(L"A_t.png");
    CArguments list;
    list.String(L"Replace").Short(0).String(L"A");
    Run(list, [](HWND dialog) { PressKey(dialog, VK_RETURN); });
    EXPECT_EQ(fakeHost.results, Results{"(100 \"A\")"});
}

TEST_F(ChoiceCommand, ReplaceAnswersAThousand) {
    WriteSlide(L"A_t.png");
    WriteSlide(L"B_t.png");
    CArguments list;
    list.String(L"Replace").Short(0).String(L"A").String(L"B");
    EXPECT_EQ(Run(list,
                  [](HWND dialog) {
                      Notify(dialog, 2, STN_CLICKED);
                      PressButton(dialog, IDC_CHOICE_REPLACE);
                  }),
              0);
    EXPECT_EQ(fakeHost.results, Results{"(1000 \"B\")"});
}

TEST_F(ChoiceCommand, CancelEscapeAndTheCloseBoxAnswerNil) {
    WriteSlide(L"A_t.png");
    CArguments list;
    list.String(L"Replace").Short(0).String(L"A");
    for (const CModalDriver::Step& step :
         {Press(IDCANCEL), CModalDriver::Step([](HWND dialog) { PressKey(dialog, VK_ESCAPE); }),
          CModalDriver::Step(PressCloseBox)}) {
        EXPECT_EQ(Run(list, step), 0);
        EXPECT_EQ(fakeHost.results, Results{"nil"});
    }
}

TEST_F(ChoiceCommand, AnswersEachChoiceOfEachCount) {
    // The cells of the choices in order.
    const std::array<std::vector<int>, 7> cells = {
        {{}, {1}, {1, 2}, {1, 2, 3}, {1, 2, 4, 5}, {1, 2, 3, 4, 6}, {1, 2, 3, 4, 5, 6}}};
    for (size_t count = 1; count <= 6; ++count) {
        CArguments list;
        list.String(L"Replace").Short(0);
        for (size_t choice = 0; choice < count; ++choice) {
            const std::wstring name = L"n" + std::to_wstring(choice);
            WriteSlide(name + L"_t.png");
            list.String(name.c_str());
        }
        for (size_t choice = 0; choice < count; ++choice) {
            const Results expected = {"(100 \"n" + std::to_string(choice) + "\")"};
            const int cell = cells[count][choice];
            Run(list, [&](HWND dialog) { Notify(dialog, cell, STN_DBLCLK); });
            EXPECT_EQ(fakeHost.results, expected) << count;
            Run(list, [&](HWND dialog) {
                Notify(dialog, cell, STN_CLICKED);
                PressButton(dialog, IDOK);
            });
            EXPECT_EQ(fakeHost.results, expected) << count;
        }
    }
}

TEST_F(ChoiceCommand, MoreThanSixChoicesAnswerNilUnseen) {
    CArguments list;
    list.String(L"Replace").Short(0);
    for (const wchar_t* name : {L"a", L"b", L"c", L"d", L"e", L"f", L"g"}) {
        WriteSlide(std::wstring(name) + L"_t.png");
        list.String(name);
    }
    EXPECT_EQ(Run(list, Press(IDOK)), 0);
    EXPECT_EQ(fakeHost.results, Results{"nil"});
    EXPECT_TRUE(fakeHost.alerts.empty());
    EXPECT_EQ(m_driver.StepsLeft(), 1U);
}

// Which cells hold a choice shows in the name that each gives; the window's size would not show it
// while the window manager still moves it.
TEST_F(ChoiceCommand, CountsSlidesInSpaceUnlessTheFlagLeavesThemOut) {
    WriteSlide(L"A_t.png");
    WriteSlide(L"B_t_3d.png");
    for (const short flatOnly : {short{0}, short{1}}) {
        const std::string names[] = {"A", flatOnly != 0 ? "" : "B", ""};
        for (const int cell : {1, 2, 3}) {
            CArguments list;
            list.String(L"Replace").Short(flatOnly).String(L"A").String(L"B");
            Run(list, [cell](HWND dialog) {
                Notify(dialog, cell, STN_CLICKED);
                PressButton(dialog, IDOK);
            });
            EXPECT_EQ(fakeHost.results, Results{"(100 \"" + names[cell - 1] + "\")"}) << flatOnly << cell;
        }
    }
}

TEST_F(ChoiceCommand, ElementsThatAreNoStringsTakeNoCell) {
    WriteSlide(L"A_t.png");
    WriteSlide(L"B_t.png");
    CArguments list;
    list.String(L"Replace").Short(0).Short(7).String(L"A").Real(1.5).Other().String(L"B").Short(0);
    Run(list, [](HWND dialog) { Notify(dialog, 2, STN_DBLCLK); });
    EXPECT_EQ(fakeHost.results, Results{"(100 \"B\")"});
    EXPECT_EQ(fakeHost.searched.front(), L"A_t.png");
}

TEST_F(ChoiceCommand, NamesWithoutASlideAreDroppedWithoutAMessage) {
    WriteSlide(L"B_t.png");
    CArguments list;
    list.String(L"Replace").Short(0).String(L"A").String(L"B").String(L"");
    Run(list, Press(IDOK));
    EXPECT_EQ(fakeHost.results, Results{"(100 \"B\")"});
    EXPECT_TRUE(fakeHost.alerts.empty());
}

TEST_F(ChoiceCommand, OneNameMayBeChosenTwice) {
    WriteSlide(L"A_t.png");
    CArguments list;
    list.String(L"Replace").Short(0).String(L"A").String(L"A");
    Run(list, [](HWND dialog) { Notify(dialog, 2, STN_DBLCLK); });
    EXPECT_EQ(fakeHost.results, Results{"(100 \"A\")"});
}

TEST_F(ChoiceCommand, WithoutAnySlideAlertsAndAnswersNil) {
    WriteSlide(L"B_t_3d.png");
    CArguments flatOnly;
    flatOnly.String(L"Replace").Short(1).String(L"A").String(L"B");
    CArguments noNames;
    noNames.String(L"Replace").Short(0);
    // The alert has no text while there is no resource module; each call looks for it again.
    EXPECT_EQ(Run(flatOnly, Press(IDOK)), 1);
    OfferTextModule();
    EXPECT_EQ(Run(flatOnly, Press(IDOK)), 1);
    EXPECT_EQ(fakeHost.results, Results{"nil"});
    EXPECT_EQ(Run(noNames, Press(IDOK)), 1);
    EXPECT_EQ(fakeHost.results, Results{"nil"});
    const std::wstring text = L"Nessuna immagine trovata per le varianti indicate.";
    EXPECT_EQ(fakeHost.alerts, (std::vector<std::wstring>{L"", text, text}));
    EXPECT_EQ(m_driver.StepsLeft(), 1U);
}

// A caller's error, which must not harm the host: the flag counts as 0.
TEST_F(ChoiceCommand, AMissingFlagIsNoHarm) {
    CArguments list;
    list.String(L"Replace");
    EXPECT_EQ(Run(list, Press(IDOK)), 1);
    EXPECT_EQ(fakeHost.results, Results{"nil"});
    EXPECT_EQ(fakeHost.alerts.size(), 1U);
}

TEST_F(ChoiceCommand, ACaptionThatIsNoStringIsEmpty) {
    WriteSlide(L"A_t.png");
    CArguments list;
    list.Real(1e300).Short(0).String(L"A");
    Run(list, [](HWND dialog) {
        EXPECT_EQ(GetWindowTextLengthW(GetDlgItem(dialog, IDC_CHOICE_REPLACE)), 0);
        PressButton(dialog, IDOK);
    });
    EXPECT_EQ(fakeHost.results, Results{"(100 \"A\")"});
}

TEST_F(ChoiceCommand, TheCaptionIsThatOfTheReplaceButton) {
    WriteSlide(L"A_t.png");
    CArguments list;
    list.String(L"Another one").Short(0).String(L"A");
    Run(list, [](HWND dialog) {
        wchar_t caption[50] = {};
        GetDlgItemTextW(dialog, IDC_CHOICE_REPLACE, caption, 50);
        EXPECT_STREQ(caption, L"Another one");
        PressButton(dialog, IDCANCEL);
    });
}

TEST_F(ChoiceCommand, ASlideThatVanishesAfterTheSearchKeepsItsChoice) {
    WriteSlide(L"A_t.png");
    WriteSlide(L"B_t.png");
    int searches = 0;
    // The two searches of the names succeed, later ones do not.
    fakeHost.findFile = [&](const wchar_t* name, wchar_t* result, size_t) {
        if (++searches > 2) {
            return FakeHost::RtNorm - 1;
        }
        wcscpy(result, m_folder.Path(name).c_str());
        return FakeHost::RtNorm;
    };
    CArguments list;
    list.String(L"Replace").Short(0).String(L"A").String(L"B");
    fakeHost.arguments = list.List();
    m_driver.ThenPressOk();
    m_driver.ThenPressOk();
    m_driver.Then([](HWND dialog) { Notify(dialog, 2, STN_DBLCLK); });
    EXPECT_EQ(RunChoiceDialog(), 0);
    EXPECT_EQ(fakeHost.results, Results{"(100 \"B\")"});
    ASSERT_EQ(m_driver.messages.size(), 2U);
    EXPECT_EQ(m_driver.messages[1].text, L"Missing slide file! Unable to load correctly!");
    EXPECT_EQ(m_driver.messages[1].caption, L"Error!");
}

TEST_F(ChoiceCommand, OpensOverTheHostsMainWindow) {
    WriteSlide(L"A_t.png");
    CWnd host;
    host.CreateEx(0, AfxRegisterWndClass(0), L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 900, 700),
                  nullptr, 0);
    fakeHost.mainWindow = host;
    CArguments list;
    list.String(L"Replace").Short(0).String(L"A");
    Run(list, [&](HWND dialog) {
        EXPECT_EQ(::GetWindow(dialog, GW_OWNER), host.m_hWnd);
        EXPECT_FALSE(::IsWindowEnabled(host));
        PressButton(dialog, IDOK);
    });
    EXPECT_TRUE(::IsWindowEnabled(host));
    host.DestroyWindow();
}

TEST_F(ChoiceCommand, AnExceptionEndsWithNilAndTheOldModuleState) {
    AFX_MODULE_STATE* const before = AfxGetModuleState();
    fakeHost.findFile = [](const wchar_t*, wchar_t*, size_t) -> int { throw std::runtime_error("host"); };
    CArguments list;
    list.String(L"Replace").Short(0).String(L"A");
    EXPECT_EQ(Run(list, Press(IDOK)), 0);
    EXPECT_EQ(fakeHost.results, Results{"nil"});
    EXPECT_EQ(AfxGetModuleState(), before);
}

TEST_F(ChoiceCommand, AnswersWithoutGdiPlusToo) {
    WriteSlide(L"A_t.png");
    const CNoGdiPlus system;
    CArguments list;
    list.String(L"Replace").Short(0).String(L"A");
    EXPECT_EQ(Run(list, Press(IDOK)), 0);
    EXPECT_EQ(fakeHost.results, Results{"(100 \"A\")"});
}

TEST_F(ChoiceCommand, AnExceptionOfTheFrameworkEndsWithNilAndIsFreed) {
    AFX_MODULE_STATE* const before = AfxGetModuleState();
    fakeHost.findFile = [](const wchar_t*, wchar_t*, size_t) -> int { AfxThrowMemoryException(); };
    CArguments list;
    list.String(L"Replace").Short(0).String(L"A");
    Run(list, Press(IDOK));
    const long long blocks = HeapBlockCount();
    EXPECT_EQ(Run(list, Press(IDOK)), 0);
    EXPECT_EQ(fakeHost.results, Results{"nil"});
    EXPECT_EQ(AfxGetModuleState(), before);
    EXPECT_EQ(HeapBlockCount(), blocks);
}

TEST_F(ChoiceCommand, TakesALongNameAsItIs) {
    WriteSlide(L"short.png");
    fakeHost.findFile = [&](const wchar_t*, wchar_t* result, size_t capacity) {
        EXPECT_EQ(capacity, 254U);
        wcscpy(result, m_folder.Path(L"short.png").c_str());
        return FakeHost::RtNorm;
    };
    for (const size_t length : {254U, 255U, 3000U}) {
        CArguments list;
        list.String(L"Replace").Short(0).String(std::wstring(length, L'n').c_str());
        Run(list, Press(IDOK));
        EXPECT_EQ(fakeHost.results, Results{"(100 \"" + std::string(length, 'n') + "\")"});
    }
}

TEST_F(ChoiceCommand, FiveHundredCallsLeaveNothingBehind) {
    CArguments list;
    list.String(L"Replace").Short(0);
    // A stream that stayed would show: 500 of these are 32 MB.
    for (const wchar_t* name : {L"a", L"b"}) {
        m_folder.Write(std::wstring(name) + L"_t.png",
                       BitmapFile(104, 104, std::vector<unsigned>(104 * 104, 0x3060C0)));
        list.String(name);
    }
    const auto call = [&](int round) {
        Run(list, [round](HWND dialog) {
            if (round % 2 == 0) {
                Notify(dialog, 2, STN_DBLCLK);
            } else {
                PressButton(dialog, IDCANCEL);
            }
        });
        m_driver.Forget();
        fakeHost.searched.clear();
        fakeHost.results.clear();
    };
    for (int round = 0; round < 4; ++round) {
        call(round);
    }
    const ProcessHoldings before = CountHoldings();
    const long long memory = ProcessHeapSize();
    for (int round = 0; round < 500; ++round) {
        call(round);
    }
    EXPECT_EQ(CountHoldings(), before);
    EXPECT_LT(ProcessHeapSize() - memory, 4'000'000);
}

}  // namespace
