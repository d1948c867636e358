// Hands for one call of the module in which anything may come up: they answer every message box, confirm
// the command's dialog, and close it when confirming does not.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

class CCommandHands {
public:
    // `confirm` acts once on the command's dialog when that shows; pressing OK when there is none.
    explicit CCommandHands(std::function<void(HWND dialog)> confirm = {});
    ~CCommandHands();
    CCommandHands(const CCommandHands&) = delete;
    CCommandHands& operator=(const CCommandHands&) = delete;

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
