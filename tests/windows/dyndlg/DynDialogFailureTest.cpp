// The message when something cannot be created; everything else still works.
#include "tests/windows/dyndlg/DynDialogFixture.h"
#include "tests/windows/dyndlg/LocalMemoryHook.h"
#include "tests/windows/support/HandleCount.h"

namespace {

class DynDialogFailure : public DynDialog {
protected:
    void ExpectMessages(std::initializer_list<const wchar_t*> texts) {
        ASSERT_EQ(m_driver->messages.size(), texts.size());
        size_t index = 0;
        for (const wchar_t* text : texts) {
            EXPECT_EQ(m_driver->messages[index].text, text);
            EXPECT_EQ(m_driver->messages[index].buttons, 1);
            ++index;
        }
    }
};

TEST_F(DynDialogFailure, AControlThatCannotBeCreatedIsLeftOut) {
    CDynDialogEx dialog(&m_parent);
    CString text = L"kept";
    CString other = L"before";
    dialog.AddDlgControl(L"EDITX", L"", tabbed, 0, nullptr, &text, 500);
    dialog.AddDlgControl(L"EDIT", L"", tabbed, 0, nullptr, &other, 501);
    m_driver->ThenPressOk();
    m_driver->ThenPressOk();
    EXPECT_EQ(RunWithOk(dialog,
                        [](HWND window) {
                            EXPECT_EQ(::GetDlgItem(window, 500), nullptr);
                            EXPECT_EQ(TextOf(::GetDlgItem(window, 501)), L"before");
                            ::SetDlgItemTextW(window, 501, L"after");
                        }),
              IDOK);
    ExpectMessages({L"Failed to create DlgItem.", L"Failed SetWindowPos for control EDITX."});
    EXPECT_STREQ(text, L"kept");
    EXPECT_STREQ(other, L"after");
}

TEST_F(DynDialogFailure, AnObjectWhoseControlCannotBeCreatedStaysWithoutWindow) {
    CDynDialogEx dialog(&m_parent);
    CWnd object;
    dialog.AddDlgControl(L"LISTLESS", L"", tabbed, 0, nullptr, &object, 500);
    m_driver->ThenPressOk();
    m_driver->ThenPressOk();
    EXPECT_EQ(RunWithOk(dialog), IDOK);
    ExpectMessages({L"Failed to create DlgItem.", L"Failed SetWindowPos for control LISTLESS."});
    EXPECT_EQ(object.m_hWnd, nullptr);
}

TEST_F(DynDialogFailure, ACodeThatIsNoneOfTheClassesCannotBeCreated) {
    CDynDialogEx dialog(&m_parent);
    int data = 5;
    dialog.AddDlgControl(147U, L"", tabbed, 0, nullptr, &data, 500);
    m_driver->ThenPressOk();
    m_driver->ThenPressOk();
    EXPECT_EQ(RunWithOk(dialog), IDOK);
    ExpectMessages({L"Failed to create DlgItem.", L"Failed SetWindowPos for control ."});
    EXPECT_EQ(data, 5);
}

TEST_F(DynDialogFailure, EachControlThatCannotBeCreatedIsReported) {
    CDynDialogEx dialog(&m_parent);
    dialog.AddDlgControl(L"EDIT-A", L"", tabbed, 0, nullptr, nullptr, 0);
    dialog.AddDlgControl(L"EDIT-B", L"", tabbed, 0, nullptr, nullptr, 0);
    for (int message = 0; message < 4; ++message) {
        m_driver->ThenPressOk();
    }
    EXPECT_EQ(RunWithOk(dialog), IDOK);
    ExpectMessages({L"Failed to create DlgItem.", L"Failed to create DlgItem.",
                    L"Failed SetWindowPos for control EDIT-A.", L"Failed SetWindowPos for control EDIT-B."});
}

TEST_F(DynDialogFailure, WithoutMemoryForTheTemplateThereIsNoDialog) {
    CLocalMemoryHook memory;
    memory.failAlloc = true;
    CDynDialogEx dialog(&m_parent);
    m_driver->ThenPressOk();
    EXPECT_EQ(dialog.DoModal(), -1);
    ExpectMessages({L"CDynDialogEx::DoModal() : LocalAllock Failed"});
    EXPECT_EQ(memory.freed, 0);
}

TEST_F(DynDialogFailure, MemoryThatCannotBeLockedIsFreed) {
    CLocalMemoryHook memory;
    memory.failLock = true;
    CDynDialogEx dialog(&m_parent);
    int freedBefore = -1;
    m_driver->Then([&](HWND box) {
        freedBefore = memory.freed;
        m_driver->messages.push_back(ReadMessageBox(box));
        ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(dialog.DoModal(), -1);
    ExpectMessages({L"CDynDialogEx::DoModal() : LocalLock Failed"});
    EXPECT_EQ(freedBefore, 1);
    EXPECT_EQ(memory.alive, 0);
}

TEST_F(DynDialogFailure, TheTemplatesMemoryIsMovableZeroFilledAndGivenBack) {
    CLocalMemoryHook memory;
    CDynDialogEx dialog(&m_parent);
    dialog.SetWindowTitle(L"Title");
    // 24 bytes, "Title" and "MS Sans Serif" with their zeros, and one button with its caption from byte 64
    // on.
    dialog.AddSubclassedDlgControl(L"BUTTON", L"in", tabbed, 0, nullptr, 0);
    m_driver->Then([&](HWND window) {
        EXPECT_EQ(memory.alive, 1);
        EXPECT_EQ(memory.locked, 1);
        PressButton(window, IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(memory.flags, 0x42U);
    EXPECT_EQ(memory.lastSize, 64U + 30);
    EXPECT_EQ(memory.alive, 0);
    EXPECT_EQ(memory.locked, 0);
}

TEST_F(DynDialogFailure, AnExceptionOnTheWayLeavesNoMemoryBehind) {
    CLocalMemoryHook memory;
    CTestDialog dialog(&m_parent);
    dialog.beforeInit = [] { AfxThrowUserException(); };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(memory.allocated, 1);
    EXPECT_EQ(memory.alive, 0);
    EXPECT_EQ(memory.locked, 0);
    EXPECT_TRUE(m_parent.IsWindowEnabled());
}

TEST_F(DynDialogFailure, NothingIsLeftOverManyDialogs) {
    const auto run = [this] {
        CDynDialogEx dialog(&m_parent);
        CString text = L"text";
        CButton button;
        dialog.SetWindowTitle(L"Again");
        dialog.AddDlgControl(L"EDIT", L"", tabbed, 0, nullptr, &text, 0);
        dialog.AddDlgControl(L"BUTTON", L"push", tabbed, 0, nullptr, &button, 0);
        dialog.AddDlgControl(L"SysDateTimePick32", L"", tabbed, 0, nullptr, nullptr, 0);
        dialog.AddSubclassedDlgControl(L"STATIC", L"in", plain, 0, nullptr, 0);
        EXPECT_EQ(RunWithOk(dialog), IDOK);
        ForgetSteps();
    };
    CLocalMemoryHook memory;
    // What the system and the framework make once and keep.
    for (int warmUp = 0; warmUp < 3; ++warmUp) {
        run();
    }
    const ProcessHoldings before = CountHoldings();
    for (int cycle = 0; cycle < 100; ++cycle) {
        run();
    }
    EXPECT_EQ(CountHoldings(), before);
    EXPECT_EQ(memory.alive, 0);
    EXPECT_EQ(memory.locked, 0);
}

}  // namespace
