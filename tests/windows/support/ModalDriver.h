// Drives modal dialogs: while a modal loop of the test's thread runs, each step of the script is given the
// next dialog or message box that opens, and acts on it.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

struct MessageBoxSeen {
    std::wstring caption;
    std::wstring text;
    HWND owner = nullptr;
    int buttons = 0;
};

class CModalDriver {
public:
    using Step = std::function<void(HWND dialog)>;

    CModalDriver();
    ~CModalDriver();
    CModalDriver(const CModalDriver&) = delete;
    CModalDriver& operator=(const CModalDriver&) = delete;

    // Runs `step` once when a dialog that no step has seen is visible and its thread is idle.
    void Then(Step step);

    // A step that records a message box in `messages` and presses its only button.
    void ThenPressOk();

    // Steps that have not run. Steps left at the end of a test mean that an expected dialog did not open.
    size_t StepsLeft() const { return m_steps.size() - m_next; }

    // Clears the script and the messages.
    void Forget();

    std::vector<MessageBoxSeen> messages;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
    void Act();

    std::vector<Step> m_steps;
    size_t m_next = 0;
    std::vector<HWND> m_seen;
    UINT_PTR m_timer;
};

// Presses the button `id` of a dialog as a click would, without waiting for what it does.
void PressButton(HWND dialog, int id);

// What a message box says.
MessageBoxSeen ReadMessageBox(HWND box);
