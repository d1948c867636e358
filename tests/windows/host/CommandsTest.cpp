#include "host/Commands.h"

#include <afxwin.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/windows/support/Arguments.h"
#include "tests/windows/support/FakeHost.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/ModalDriver.h"
#include "tests/windows/support/TempFolder.h"

using namespace tavrin::host;

namespace {

TEST(ItemArguments, NeedAStringFirst) {
    EXPECT_FALSE(ReadItemArguments(nullptr));
    EXPECT_FALSE(ReadItemArguments(CArguments().Short(5).List()));
    EXPECT_FALSE(ReadItemArguments(CArguments().Real(1).String(L"door").List()));
}

TEST(ItemArguments, HaveDefaults) {
    CArguments list;
    const auto arguments = ReadItemArguments(list.String(L"door").List());
    ASSERT_TRUE(arguments);
    EXPECT_STREQ(arguments->baseName, L"door");
    EXPECT_EQ(arguments->scale, 1.0);
    EXPECT_EQ(arguments->mode, 0);
}

TEST(ItemArguments, AreAStringARealAndAShort) {
    CArguments list;
    const auto arguments = ReadItemArguments(list.String(L"door").Real(0.001).Short(-3).List());
    ASSERT_TRUE(arguments);
    EXPECT_EQ(arguments->scale, 0.001);
    EXPECT_EQ(arguments->mode, -3);
}

TEST(ItemArguments, ReadTheThirdWhateverTheSecondIs) {
    CArguments list;
    const auto arguments = ReadItemArguments(list.String(L"door").String(L"x").Short(1).List());
    ASSERT_TRUE(arguments);
    EXPECT_EQ(arguments->scale, 1.0);
    EXPECT_EQ(arguments->mode, 1);
}

TEST(ItemArguments, MayEndAfterTheScale) {
    CArguments list;
    const auto arguments = ReadItemArguments(list.String(L"door").Real(2).List());
    ASSERT_TRUE(arguments);
    EXPECT_EQ(arguments->scale, 2.0);
    EXPECT_EQ(arguments->mode, 0);
}

TEST(ItemArguments, LeaveTheModeWhenTheThirdIsNoShort) {
    CArguments list;
    const auto arguments = ReadItemArguments(list.String(L"door").Short(7).Real(1).List());
    ASSERT_TRUE(arguments);
    EXPECT_EQ(arguments->scale, 1.0);
    EXPECT_EQ(arguments->mode, 0);
}

class ItemCommand : public testing::Test {
protected:
    void SetUp() override {
        fakeHost = {};
        m_folder.Write(L"item_TMP.TXT", "free\r\nTitle\r\nVAR\r\n$1 = \"<<1501>>\"R 5\r\nEND_VAR\r\n");
        m_folder.Write(L"item.TXT", "free\r\nTitle\r\nVAR\r\n$1 = \"<<1501>>\"R 5\r\nEND_VAR\r\n");
        fakeHost.searchFolders = {m_folder.Path(L"")};
    }

    CTempFolder m_folder;
    CModalDriver m_driver;
};

TEST_F(ItemCommand, AnswersZeroAfterOk) {
    CArguments list;
    fakeHost.arguments = list.String(L"item").Real(1).Short(0).List();
    m_driver.Then([](HWND dialog) { PressButton(dialog, IDOK); });
    EXPECT_EQ(RunItemDialog(), 0);
    EXPECT_EQ(fakeHost.results, std::vector<std::string>{"0"});
}

TEST_F(ItemCommand, AnswersNilAfterCancel) {
    CArguments list;
    fakeHost.arguments = list.String(L"item").List();
    m_driver.Then([](HWND dialog) { PressButton(dialog, IDCANCEL); });
    EXPECT_EQ(RunItemDialog(), 0);
    EXPECT_EQ(fakeHost.results, std::vector<std::string>{"nil"});
}

TEST_F(ItemCommand, ANumberAsOnlyArgumentOpensNothingAndSetsNoResult) {
    CArguments list;
    fakeHost.arguments = list.Short(5).List();
    EXPECT_EQ(RunItemDialog(), 0);
    EXPECT_TRUE(fakeHost.results.empty());
    EXPECT_TRUE(fakeHost.searched.empty());
}

TEST_F(ItemCommand, OpensOverTheHostsMainWindow) {
    CWnd host;
    host.CreateEx(0, AfxRegisterWndClass(0), L"host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 900, 700),
                  nullptr, 0);
    fakeHost.mainWindow = host;
    CArguments list;
    fakeHost.arguments = list.String(L"item").List();
    HWND owner = nullptr;
    bool hostEnabled = true;
    m_driver.Then([&](HWND dialog) {
        owner = ::GetWindow(dialog, GW_OWNER);
        hostEnabled = ::IsWindowEnabled(host) != FALSE;
        PressButton(dialog, IDCANCEL);
    });
    RunItemDialog();
    EXPECT_EQ(owner, host.m_hWnd);
    EXPECT_FALSE(hostEnabled);
    EXPECT_TRUE(::IsWindowEnabled(host));
    host.DestroyWindow();
}

TEST_F(ItemCommand, AnExceptionEndsWithNil) {
    CArguments list;
    fakeHost.arguments = list.String(L"item").List();
    fakeHost.findFile = [](const wchar_t*, wchar_t*, size_t) -> int { throw std::runtime_error("host"); };
    m_driver.ThenPressOk();
    EXPECT_EQ(RunItemDialog(), 0);
    EXPECT_EQ(fakeHost.results, std::vector<std::string>{"nil"});
}

// Takes the module's dialogs away.
class COtherResources {
public:
    COtherResources() { Set(::GetModuleHandleW(L"kernel32.dll")); }
    ~COtherResources() { Set(m_own); }
    COtherResources(const COtherResources&) = delete;
    COtherResources& operator=(const COtherResources&) = delete;

private:
    static void Set(HINSTANCE resources) { AfxGetStaticModuleState()->m_hCurrentResourceHandle = resources; }

    const HINSTANCE m_own = AfxGetStaticModuleState()->m_hCurrentResourceHandle;
};

TEST_F(ItemCommand, AMissingDialogResourceAnswersNilAndOpensNothing) {
    m_folder.Write(L"item_t.png", "");
    const std::string before = m_folder.Read(L"item_TMP.TXT");
    const COtherResources resources;
    CArguments list;
    fakeHost.arguments = list.String(L"item").Short(0).String(L"item").List();
    for (const auto command : {RunItemDialog, RunChoiceDialog, RunPreviewDialog}) {
        fakeHost.results.clear();
        EXPECT_EQ(command(), 0);
        EXPECT_EQ(fakeHost.results, std::vector<std::string>{"nil"});
    }
    EXPECT_EQ(m_folder.Read(L"item_TMP.TXT"), before);
}

TEST_F(ItemCommand, RestoresTheModuleStateOnEveryWayOut) {
    AFX_MODULE_STATE* const before = AfxGetModuleState();
    CArguments list;
    fakeHost.arguments = list.String(L"item").List();
    m_driver.Then([](HWND dialog) { PressButton(dialog, IDCANCEL); });
    RunItemDialog();
    EXPECT_EQ(AfxGetModuleState(), before);
    fakeHost.findFile = [](const wchar_t*, wchar_t*, size_t) -> int { throw std::runtime_error("host"); };
    m_driver.ThenPressOk();
    RunItemDialog();
    EXPECT_EQ(AfxGetModuleState(), before);
}

}  // namespace
