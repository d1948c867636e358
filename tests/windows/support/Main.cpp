// main() of the window tests: binds the host interface to this program's own exports, closes message boxes
// that no test expects, and ends a test that hangs, naming it.
#include <gtest/gtest.h>
#include <objbase.h>
#include <windows.h>

#include <atomic>
#include <cstdio>

#include "sds/HostBinding.h"
#include "tests/windows/support/UnexpectedBoxes.h"

namespace {

// The 32-bit system under Wine scales pictures several times slower.
constexpr DWORD secondsPerTest = sizeof(void*) == 8 ? 120 : 480;
constexpr DWORD secondsPerBox = 10;
constexpr UINT statusHung = 4;
constexpr UINT statusCrashed = 5;

std::atomic<ULONGLONG> testStarted{0};
std::atomic<const char*> suiteName{""};
std::atomic<const char*> testName{""};

class CWatchdogListener : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& test) override {
        suiteName = test.test_suite_name();
        testName = test.name();
        testStarted = GetTickCount64();
    }
    void OnTestEnd(const testing::TestInfo&) override { testStarted = 0; }
};

// Left to itself a crash may end with status 0 under Wine.
LONG WINAPI EndCrashed(EXCEPTION_POINTERS* exception) {
    std::fprintf(stderr, "CRASHED: %s.%s, exception %08lx at %p\n", suiteName.load(), testName.load(),
                 exception->ExceptionRecord->ExceptionCode, exception->ExceptionRecord->ExceptionAddress);
    std::fflush(stderr);
    TerminateProcess(GetCurrentProcess(), statusCrashed);
    return EXCEPTION_EXECUTE_HANDLER;
}

DWORD WINAPI Watch(void* thread) {
    CUnexpectedBoxes boxes(secondsPerBox * 1000);
    for (;;) {
        Sleep(500);
        const ULONGLONG started = testStarted;
        if (started == 0) {
            continue;
        }
        boxes.Look(static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(thread)));
        if (GetTickCount64() - started < secondsPerTest * 1000) {
            continue;
        }
        wchar_t title[200] = {};
        GetWindowTextW(GetForegroundWindow(), title, 200);
        std::fprintf(stderr, "HUNG: %s.%s did not end within %lu s; the window in front is \"%ls\"\n",
                     suiteName.load(), testName.load(), secondsPerTest, title);
        std::fflush(stderr);
        TerminateProcess(GetCurrentProcess(), statusHung);
    }
}

}  // namespace

int main(int argc, char** argv) {
    SetUnhandledExceptionFilter(EndCrashed);
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new CWatchdogListener);
    const std::wstring missing = BindHost(GetModuleHandleW(nullptr));
    if (!missing.empty()) {
        std::fprintf(stderr, "the test program does not export: %ls\n", missing.c_str());
        return 1;
    }
    const HRESULT com = CoInitialize(nullptr);
    CloseHandle(CreateThread(nullptr, 0, Watch, reinterpret_cast<void*>(ULONG_PTR(GetCurrentThreadId())), 0,
                             nullptr));
    const int result = RUN_ALL_TESTS();
    if (SUCCEEDED(com)) {
        CoUninitialize();
    }
    return result;
}
