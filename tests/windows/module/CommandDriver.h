// Drives one call of the module in which any dialog may open: answers every message box, confirms the
// command's dialog, and closes it when confirming does not.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

class CCommandDriver {
public:
    // `confirm` acts once on the command's dialog when that shows; pressing OK when there is none.
    explicit CCommandDriver(std::function<void(HWND dialog)> confirm = {});
    ~CCommandDriver();
    CCommandDriver(const CCommandDriver&) = delete;
    CCommandDriver& operator=(const CCommandDriver&) = delete;

    // The texts of the message boxes that were answered.
    std::vector<std::wstring> messages;

    // The command's dialogs that were confirmed.
    int confirmed = 0;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
    void Act();
    void Handle(HWND dialog);

    std::function<void(HWND)> m_confirm;
    HWND m_current = nullptr;  // the dialog that was handled last
    int m_patience = 0;        // ticks until a dialog that is still there is closed
    UINT_PTR m_timer;
};
