// Commands that do not return.
#include <cstdlib>
#include <cstring>
#include <stdexcept>

#include "tests/windows/programs/testplugin/TestPlugin.h"

namespace tests {

namespace {

int* volatile nowhere = nullptr;
void* (*volatile fill)(void*, int, std::size_t) = std::memset;

LRESULT CALLBACK CrashingProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_USER) {
        *nowhere = 1;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

void Crash() {
    *nowhere = 1;
}

void CrashInWindow() {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = CrashingProc;
    windowClass.lpszClassName = L"TestPluginCrash";
    RegisterClassW(&windowClass);
    const HWND window =
        CreateWindowExW(0, L"TestPluginCrash", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    SendMessageW(window, WM_USER, 0, 0);
    DestroyWindow(window);
}

void CrashInRuntime() {
    fill(nowhere, 0, 1000);
}

void ThrowOut() {
    throw std::runtime_error("from the test plug-in");
}

void Abort() {
    std::abort();
}

}  // namespace tests
