// tavrinprevmask from its argument to its result.
#include <afxwin.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "host/Commands.h"
#include "tests/windows/host/ProcessHeap.h"
#include "tests/windows/support/Arguments.h"
#include "tests/windows/support/Bitmap.h"
#include "tests/windows/support/DialogInput.h"
#include "tests/windows/support/FakeHost.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/ModalDriver.h"
#include "tests/windows/support/NoGdiPlus.h"
#include "tests/windows/support/TempFolder.h"

using namespace tavrin::host;

namespace {

using Results = std::vector<std::string>;

class PreviewCommand : public testing::Test {
protected:
    void SetUp() override {
        fakeHost = {};
        fakeHost.searchFolders = {m_folder.Path(L"")};
        // A stream that stayed would show: 500 of these are 32 MB.
        m_folder.Write(L"door.png", BitmapFile(148, 148, std::vector<unsigned>(148 * 148, 0x3060C0)));
    }

    int Run(CArguments& arguments, const CModalDriver::Step& step) {
        m_driver.Forget();
        fakeHost.results.clear();
        fakeHost.arguments = arguments.List();
        m_driver.Then(step);
        return RunPreviewDialog();
    }

    CTempFolder m_folder;
    CModalDriver m_driver;
};

void PressEnter(HWND dialog) {
    PressKey(dialog, VK_RETURN);
}

void PressEscape(HWND dialog) {
    PressKey(dialog, VK_ESCAPE);
}

TEST_F(PreviewCommand, AnythingButAStringSetsNoResultAndOpensNothing) {
    CArguments none;
    CArguments number;
    number.Short(5);
    CArguments real;
    real.Real(1).String(L"door");
    for (CArguments* arguments : {&none, &number, &real}) {
        EXPECT_EQ(Run(*arguments, PressEnter), 0);
        EXPECT_TRUE(fakeHost.results.empty());
        EXPECT_TRUE(fakeHost.searched.empty());
        EXPECT_EQ(m_driver.StepsLeft(), 1U);
    }
}

TEST_F(PreviewCommand, EnterAnswersZero) {
    CArguments list;
    list.String(L"door");
    EXPECT_EQ(Run(list, PressEnter), 0);
    EXPECT_EQ(fakeHost.results, Results{"0"});
    EXPECT_EQ(fakeHost.searched, std::vector<std::wstring>{L"door.png"});
}

TEST_F(PreviewCommand, EscapeAndTheCloseBoxAnswerNil) {
    CArguments list;
    list.String(L"door");
    for (const auto press : {PressEscape, PressCloseBox}) {
        EXPECT_EQ(Run(list, press), 0);
        EXPECT_EQ(fakeHost.results, Results{"nil"});
    }
}

TEST_F(PreviewCommand, EnterAnswersZeroWithoutThePictureToo) {
    CArguments list;
    list.String(L"missing");
    Run(list, PressEnter);
    EXPECT_EQ(fakeHost.results, Results{"0"});
    EXPECT_TRUE(fakeHost.alerts.empty());
}

TEST_F(PreviewCommand, AnswersWithoutGdiPlusToo) {
    const CNoGdiPlus system;
    CArguments list;
    list.String(L"door");
    EXPECT_EQ(Run(list, PressEnter), 0);
    EXPECT_EQ(fakeHost.results, Results{"0"});
}

TEST_F(PreviewCommand, FurtherArgumentsDoNotMatter) {
    CArguments list;
    list.String(L"door").Short(1).Other();
    Run(list, PressEnter);
    EXPECT_EQ(fakeHost.results, Results{"0"});
}

TEST_F(PreviewCommand, OpensOverTheHostsMainWindow) {
    CWnd host;
    host.CreateEx(0, AfxRegisterWndClass(0), L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 900, 700),
                  nullptr, 0);
    fakeHost.mainWindow = host;
    CArguments list;
    list.String(L"door");
    Run(list, [&](HWND dialog) {
        EXPECT_EQ(::GetWindow(dialog, GW_OWNER), host.m_hWnd);
        EXPECT_FALSE(::IsWindowEnabled(host));
        PressCloseBox(dialog);
    });
    EXPECT_TRUE(::IsWindowEnabled(host));
    host.DestroyWindow();
}

TEST_F(PreviewCommand, AnExceptionEndsWithNilAndTheOldModuleState) {
    AFX_MODULE_STATE* const before = AfxGetModuleState();
    fakeHost.findFile = [](const wchar_t*, wchar_t*, size_t) -> int { throw std::runtime_error("host"); };
    CArguments list;
    list.String(L"door");
    m_driver.Forget();
    fakeHost.arguments = list.List();
    m_driver.ThenPressOk();
    EXPECT_EQ(RunPreviewDialog(), 0);
    EXPECT_EQ(fakeHost.results, Results{"nil"});
    EXPECT_EQ(AfxGetModuleState(), before);
}

TEST_F(PreviewCommand, FiveHundredCallsLeaveNothingBehind) {
    CArguments list;
    list.String(L"door");
    const auto call = [&](int round) {
        Run(list, round % 2 == 0 ? PressEnter : PressCloseBox);
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
