// Hands for modal dialogs: while a modal loop of the test's thread runs, each step of the script is
// given the next dialog or message box that comes up, and acts on it.
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

class CModalHands {
public:
    using Step = std::function<void(HWND dialog)>;

    CModalHands();
    ~CModalHands();
    CModalHands(const CModalHands&) = delete;
    CModalHands& operator=(const CModalHands&) = delete;

    // Runs `step` once when a dialog that no step has seen is up and visible and its thread is idle.
    void Then(Step step);

    // A step that notes a message box in `messages` and presses its only button.
    void ThenPressOk();

    // Steps that have not run. A test that ends with steps left did not see what it expected.
    size_t StepsLeft() const { return m_steps.size() - m_next; }

    // Back to an empty script.
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
