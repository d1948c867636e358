// The main window's message loops: that of the program, that of a question, and that of PollEscape. All
// handle keys in the same way.
#include <windows.h>

#include <windowsx.h>

#include <utility>

#include "devhost/drawing/TypedPoint.h"
#include "devhost/window/MainWindow.h"

namespace devhost {

namespace {

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void ShowInPrompt(HWND prompt, const std::wstring& text) {
    SetWindowTextW(prompt, text.c_str());
    SendMessageW(prompt, EM_SETSEL, text.size(), static_cast<LPARAM>(text.size()));
}

std::wstring WithoutTrailingBlanks(std::wstring_view text) {
    const std::size_t last = text.find_last_not_of(L" \t\r\n");
    return std::wstring(text.substr(0, last == std::wstring_view::npos ? 0 : last + 1));
}

}  // namespace

void CMainWindow::Run() {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        Handle(message);
    }
}

Answer CMainWindow::Ask(std::wstring_view prompt, std::optional<Point> base, EAsk what) {
    m_isAsking = true;
    m_isAnswered = false;
    m_answer = Cancelled();
    ShowPrompt(WithoutTrailingBlanks(prompt), std::wstring(prompt),
               what == ASK_POINT ? L"click in the drawing, or type" : L"");
    SetWindowTextW(m_prompt, L"");
    EnableWindow(m_prompt, TRUE);
    if (what == ASK_POINT) {
        m_drawing->BeginPick(base, [this](Point point) { EndAsk(point); });
    }
    if (IsIconic(m_window)) {
        ShowWindow(m_window, SW_RESTORE);
    }
    SetForegroundWindow(m_window);
    Focus();

    MSG message;
    while (!m_isAnswered) {
        if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
            // The loops around this one have to end as well.
            PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        Handle(message);
    }

    m_drawing->EndPick();
    m_isAsking = false;
    AddOutput(std::wstring(prompt) + ShownAnswer());
    SetWindowTextW(m_prompt, L"");
    EnableWindow(m_prompt, m_busy == 0);
    ShowOwnPrompt();
    Focus();
    return m_answer;
}

std::optional<Point> CMainWindow::PickPoint(std::wstring_view prompt, std::optional<Point> base) {
    for (;;) {
        const Answer answer = Ask(prompt, base, ASK_POINT);
        if (std::holds_alternative<Cancelled>(answer)) {
            return std::nullopt;
        }
        if (const auto* point = std::get_if<Point>(&answer)) {
            return *point;
        }
        if (const auto* text = std::get_if<std::wstring>(&answer)) {
            if (const auto point = ParsePoint(*text, base, m_drawing->MousePoint())) {
                return point;
            }
            AddOutput(L"'" + *text + L"' is not a point: click in the drawing or type X,Y");
        }
    }
}

// Ends the loop. The posted message wakes it up in case the caller was a sent message.
void CMainWindow::EndAsk(Answer answer) {
    if (m_isAnswered) {
        return;
    }
    m_isAnswered = true;
    m_answer = std::move(answer);
    PostMessageW(m_window, WM_NULL, 0, 0);
}

std::wstring CMainWindow::ShownAnswer() const {
    if (std::holds_alternative<Cancelled>(m_answer)) {
        return L"(cancelled)";
    }
    if (const auto* point = std::get_if<Point>(&m_answer)) {
        return m_status->TextOf(*point);
    }
    const auto* text = std::get_if<std::wstring>(&m_answer);
    return text != nullptr ? *text : L"";
}

bool CMainWindow::PollEscape() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return true;
        }
        Handle(message);
    }
    return std::exchange(m_isEscapePressed, false);
}

void CMainWindow::Handle(MSG message) {
    if (TakeMessage(message)) {
        return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

// True when the message was handled. May redirect a message to the prompt or the drawing.
bool CMainWindow::TakeMessage(MSG& message) {
    if (message.hwnd != m_window && !IsChild(m_window, message.hwnd)) {
        return false;
    }
    if (message.message == WM_MOUSEWHEEL) {
        // The wheel turns what is under the mouse, wherever the focus is.
        const POINT mouse = {GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)};
        if (WindowFromPoint(mouse) == m_drawing->Handle()) {
            message.hwnd = m_drawing->Handle();
        }
        return false;
    }
    if (message.message == WM_CHAR && message.wParam >= L' ' && IsWindowEnabled(m_prompt)) {
        message.hwnd = m_prompt;
        SetFocus(m_prompt);
        return false;
    }
    if (TranslateAcceleratorW(m_window, m_menu->Keys(), &message)) {
        return true;
    }
    return message.message == WM_KEYDOWN && TakeKey(message);
}

bool CMainWindow::TakeKey(const MSG& message) {
    const bool isInPrompt = message.hwnd == m_prompt;
    switch (message.wParam) {
        case VK_ESCAPE:
            TakeEscape();
            return true;
        case VK_RETURN:
            TakeEnter();
            return true;
        case VK_UP:
            if (isInPrompt) {
                ShowInPrompt(m_prompt, m_history.Older(TextOf(m_prompt)));
            }
            return isInPrompt;
        case VK_DOWN:
            if (isInPrompt) {
                ShowInPrompt(m_prompt, m_history.Newer(TextOf(m_prompt)));
            }
            return isInPrompt;
        case VK_F6:
            SwitchFocus();
            return true;
        case VK_PRIOR:
        case VK_NEXT:
            m_output->ScrollPages(message.wParam == VK_PRIOR ? -1 : 1);
            return true;
    }
    return false;
}

void CMainWindow::TakeEscape() {
    if (m_isAsking) {
        EndAsk(Cancelled());
    } else if (m_busy != 0) {
        m_isEscapePressed = true;
    } else {
        SetWindowTextW(m_prompt, L"");
        if (m_onEscape) {
            m_onEscape();
        }
    }
}

void CMainWindow::TakeEnter() {
    if (!m_isAsking && !IsIdle()) {
        return;
    }
    const std::wstring text = TextOf(m_prompt);
    SetWindowTextW(m_prompt, L"");
    if (!text.empty()) {
        m_history.Add(text);
    }
    if (m_isAsking) {
        EndAsk(text.empty() ? Answer(PlainEnter()) : Answer(text));
    } else if (text.empty() && !m_isUnfinished) {
        OnRecent(0);
    } else if (m_onCommand && !text.empty()) {
        m_onCommand(text);
    }
}

}  // namespace devhost
