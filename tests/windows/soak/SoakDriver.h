// Makes random input in whatever dialog a call opens, and ensures that the call ends.
#pragma once

#include <windows.h>

#include <deque>
#include <functional>

#include "tests/windows/soak/SoakItem.h"

class CSoakDriver {
public:
    explicit CSoakDriver(CChoices& choices);
    ~CSoakDriver();
    CSoakDriver(const CSoakDriver&) = delete;
    CSoakDriver& operator=(const CSoakDriver&) = delete;

    // Something done in the command's dialog, when it is idle.
    using Step = std::function<void(HWND dialog)>;

    // Before a call: what to do in its dialog. When that is done the dialog is ended by random means.
    void Plan(std::deque<Step> steps) {
        m_steps = std::move(steps);
        m_patience = patience;
    }

    // Steps that type `text` into a row of the item dialog's grid.
    static void AddTyping(std::deque<Step>& steps, int row, const std::wstring& text);

    // A step that makes some random input.
    Step RandomInput();

    long long Events() const { return m_events; }
    long long Boxes() const { return m_boxes; }

private:
    static constexpr int patience = 400;  // ticks for one call

    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
    void Act();
    void End(HWND dialog);
    void MakeInput(HWND dialog);

    CChoices& m_choices;
    std::deque<Step> m_steps;
    int m_patience = 0;
    long long m_events = 0;
    long long m_boxes = 0;
    UINT_PTR m_timer;
};
