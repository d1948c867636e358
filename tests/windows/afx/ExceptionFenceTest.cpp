// Exceptions that no operation catches: none crosses a procedure that Windows calls.
#include <afxwin.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "memory/MemoryFence.h"
#include "tests/windows/afx/DialogTemplate.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/ModalDriver.h"

namespace {

constexpr UINT throwFramework = WM_APP, throwUser = WM_APP + 1, throwStandard = WM_APP + 2,
               throwAny = WM_APP + 3;

class CThrowingWnd : public CWnd {
public:
    bool m_throwOnCreate = false, m_throwOnPaint = false, m_throwOnSubclass = false;
    void PreSubclassWindow() override {
        if (m_throwOnSubclass) {
            AfxThrowResourceException();
        }
    }

protected:
    DECLARE_MESSAGE_MAP()
    int OnCreate(LPCREATESTRUCT create) {
        if (m_throwOnCreate) {
            AfxThrowUserException();
        }
        return CWnd::OnCreate(create);
    }
    void OnPaint() {
        if (m_throwOnPaint) {
            AfxThrowUserException();
        }
        CWnd::OnPaint();
    }
    LRESULT OnThrow(WPARAM, LPARAM) {
        switch (GetCurrentMessage()->message) {
            case throwFramework:
                AfxThrowFileException(CFileException::fileNotFound, -1, L"name.txt");
            case throwUser:
                AfxThrowUserException();
            case throwStandard:
                throw std::runtime_error("standard");
            default:
                throw 5;
        }
    }
    void OnFail() { AfxThrowMemoryException(); }
};

BEGIN_MESSAGE_MAP(CThrowingWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_MESSAGE(throwFramework, OnThrow)
    ON_MESSAGE(throwUser, OnThrow)
    ON_MESSAGE(throwStandard, OnThrow)
    ON_MESSAGE(throwAny, OnThrow)
    ON_COMMAND(7, OnFail)
END_MESSAGE_MAP()

class ExceptionFence : public testing::Test {
protected:
    void Create() {
        m_window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr);
    }
    std::wstring SendAndReadBox(UINT message, WPARAM wParam = 0) {
        CModalDriver driver;
        driver.ThenPressOk();
        m_result = m_window.SendMessage(message, wParam);
        return driver.messages.empty() ? L"(no box)" : driver.messages[0].text;
    }

    CThrowingWnd m_window;
    LRESULT m_result = 99;
};

TEST_F(ExceptionFence, ReportsAnExceptionAndFreesIt) {
    Create();
    SendAndReadBox(throwStandard);  // what the runtime keeps of its first exception
    const long long before = HeapBlockCount();
    EXPECT_EQ(SendAndReadBox(throwFramework), L"Internal application error.\nname.txt: file error 2.");
    EXPECT_EQ(m_result, 0);
    EXPECT_EQ(HeapBlockCount(), before);
}

TEST_F(ExceptionFence, ReportsExceptionsThatAreNotTheFrameworks) {
    Create();
    EXPECT_EQ(SendAndReadBox(throwStandard), L"Internal application error.\nstandard");
    EXPECT_EQ(SendAndReadBox(throwAny), L"Internal application error.");
}

TEST_F(ExceptionFence, SaysThatACommandFailed) {
    Create();
    EXPECT_EQ(SendAndReadBox(WM_COMMAND, 7), L"Command failed.\nOut of memory.");
    EXPECT_EQ(m_result, 1);
}

TEST_F(ExceptionFence, IsSilentWhenTheUserKnows) {
    Create();
    EXPECT_EQ(m_window.SendMessage(throwUser), 0);
}

TEST_F(ExceptionFence, EndsACreationThatFails) {
    m_window.m_throwOnCreate = true;
    Create();
    EXPECT_EQ(m_window.m_hWnd, nullptr);
}

TEST_F(ExceptionFence, EndsACreationThatFailsBeforeItsFirstMessage) {
    m_window.m_throwOnSubclass = true;
    CModalDriver driver;
    driver.ThenPressOk();
    Create();
    EXPECT_EQ(driver.messages.size(), 1u);
    EXPECT_EQ(m_window.m_hWnd, nullptr);
}

TEST_F(ExceptionFence, DoesNotAskAgainForAPaintThatFails) {
    m_window.m_throwOnPaint = true;
    Create();
    m_window.ShowWindow(SW_SHOWNA);
    m_window.Invalidate();
    m_window.UpdateWindow();
    EXPECT_FALSE(::GetUpdateRect(m_window.m_hWnd, nullptr, FALSE));
}

class CThrowingDialog : public CDialog {
    BOOL OnInitDialog() override { AfxThrowUserException(); }
};

TEST_F(ExceptionFence, EndsADialogWhoseInitializationFails) {
    const CDialogTemplate empty;
    CThrowingDialog dialog;
    dialog.InitModalIndirect(empty.Get());
    EXPECT_EQ(dialog.DoModal(), -1);
}

class CRefusingDialog : public CDialog {
public:
    int m_missing = 0;

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        if (m_missing != 0) {
            exchange->PrepareCtrl(m_missing);
        } else {
            exchange->Fail();
        }
    }
};

TEST_F(ExceptionFence, MakesUpdateDataFail) {
    CRefusingDialog dialog;
    EXPECT_FALSE(dialog.UpdateData()) << "no window";
    const CDialogTemplate empty;
    dialog.CreateIndirect(empty.Get());
    EXPECT_FALSE(dialog.UpdateData());
    dialog.m_missing = 5;
    CModalDriver driver;
    driver.ThenPressOk();
    EXPECT_FALSE(dialog.UpdateData());
    ASSERT_EQ(driver.messages.size(), 1u);
    EXPECT_EQ(driver.messages[0].text, L"An unsupported operation was attempted.");
}

// What the module's windows do when an allocation fails: under the framework itself nothing else would be
// caught.
TEST(MemoryFence, TurnsAWantOfMemoryIntoTheFrameworksException) {
    EXPECT_THROW(tavrin::memory::FenceMemory([]() -> LRESULT { throw std::bad_alloc(); }), CMemoryException*);
    EXPECT_EQ(tavrin::memory::FenceMemory([] { return LRESULT{7}; }), 7);
    EXPECT_THROW(tavrin::memory::FenceMemory([]() -> LRESULT { throw 8; }), int);
}

}  // namespace
