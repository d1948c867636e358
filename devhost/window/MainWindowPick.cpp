// The main window while the user shows a point: a message loop of its own, since the call that asks for the
// point returns only with the answer.
#include "MainWindow.h"

std::optional<SPoint> CMainWindow::PickPoint(std::wstring_view prompt, std::optional<SPoint> base) {
    m_picking = true;
    m_pickEnded = false;
    ShowInStatus(SP_PROMPT, std::wstring(prompt));
    m_drawing->BeginPick(base, [this](SPoint point) { EndPick(point); });
    if (IsIconic(m_window))
        ShowWindow(m_window, SW_RESTORE);
    SetForegroundWindow(m_window);
    SetFocus(m_drawing->Handle());

    MSG message;
    while (!m_pickEnded) {
        if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
            // The loops around this one have to end as well.
            PostQuitMessage(int(message.wParam));
            EndPick(std::nullopt);
        } else if (IsEscapeOfOurs(message)) {
            EndPick(std::nullopt);
        } else {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }

    m_drawing->EndPick();
    ShowInStatus(SP_PROMPT, L"");
    m_picking = false;
    return m_picked;
}

// Ends the loop, also when the message that led here was sent to the window and did not come through it.
void CMainWindow::EndPick(std::optional<SPoint> point) {
    if (m_pickEnded)
        return;
    m_pickEnded = true;
    m_picked = point;
    PostMessageW(m_window, WM_NULL, 0, 0);
}

bool CMainWindow::IsEscapeOfOurs(const MSG& message) const {
    return message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE &&
           (message.hwnd == m_window || IsChild(m_window, message.hwnd));
}
