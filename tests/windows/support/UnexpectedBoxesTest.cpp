#include "tests/windows/support/UnexpectedBoxes.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "tests/windows/support/ModalDriver.h"

namespace {

// Looks for unexpected boxes of the test's thread while the object lives.
class CLookout {
public:
    explicit CLookout(ULONGLONG patience)
        : m_boxes(patience), m_thread([this, thread = GetCurrentThreadId()] {
              while (!m_ended) {
                  m_boxes.Look(thread);
                  Sleep(10);
              }
          }) {}
    ~CLookout() {
        m_ended = true;
        m_thread.join();
    }
    CLookout(const CLookout&) = delete;
    CLookout& operator=(const CLookout&) = delete;

private:
    CUnexpectedBoxes m_boxes;
    std::atomic<bool> m_ended{false};
    std::thread m_thread;
};

void ShowBox(UINT kind) {
    const CLookout lookout(50);
    MessageBoxW(nullptr, L"What it says", L"Its caption", kind);
}

TEST(UnexpectedBoxes, ABoxLeftOpenIsNamedAndClosedAndFailsItsTest) {
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(ShowBox(MB_OK),
                                           "unexpected message box \"Its caption\": What it says");
    // Without Cancel it cannot be closed otherwise than by a button.
    EXPECT_NONFATAL_FAILURE_ON_ALL_THREADS(ShowBox(MB_YESNO | MB_ICONQUESTION), "What it says");
}

TEST(UnexpectedBoxes, ABoxThatIsClosedInTimeFailsNothing) {
    CModalDriver driver;
    driver.ThenPressOk();
    const CLookout lookout(60'000);
    MessageBoxW(nullptr, L"What it says", L"Its caption", MB_OK);
    EXPECT_EQ(driver.messages.size(), 1U);
}

INT_PTR CALLBACK EndByTimer(HWND dialog, UINT message, WPARAM, LPARAM) {
    if (message == WM_INITDIALOG) {
        SetTimer(dialog, 1, 500, nullptr);
    } else if (message == WM_TIMER) {
        EndDialog(dialog, IDOK);
    }
    return message == WM_INITDIALOG ? TRUE : FALSE;
}

TEST(UnexpectedBoxes, ADialogOfTheModuleIsNoMessageBox) {
    const CLookout lookout(50);
    EXPECT_EQ(DialogBoxParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(102), nullptr, EndByTimer, 0),
              IDOK);
}

}  // namespace
