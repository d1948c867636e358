// The main window: the drawing area, below it the list of outputs and the prompt that takes LISP, and a
// status line with the prompt of a pick, the mouse's place in the drawing and the unit format.
//
// Knows nothing of LISP and of plug-ins; what is typed goes to the command handler.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "DrawingView.h"
#include "GdiScope.h"

class CMainWindow {
public:
    // Throws CUserError when there can be no window.
    CMainWindow();
    ~CMainWindow();
    CMainWindow(const CMainWindow&) = delete;
    CMainWindow& operator=(const CMainWindow&) = delete;

    HWND Handle() const { return m_window; }
    void Show();

    // Adds a line to the list of outputs.
    void AddOutput(std::wstring_view line);
    // What Enter in the prompt does with its text.
    void SetCommandHandler(std::function<void(const std::wstring&)> onCommand);
    // How a point of the drawing is shown in the status line, and what stands beside it.
    void SetPointFormat(std::function<std::wstring(SPoint)> format, const std::wstring& units);

    // While busy the prompt takes nothing and the window does not close.
    void SetBusy(bool busy);

    bool IsPicking() const { return m_picking; }
    // Shows `prompt` in the status line and waits for a click into the drawing, with messages of all
    // windows going on meanwhile. Nothing when the user pressed Escape or wanted to close the window, or
    // when the application is ending. Not while another pick is going on.
    std::optional<SPoint> PickPoint(std::wstring_view prompt, std::optional<SPoint> base);

    // Runs until the window has been closed.
    void Run();

private:
    template <typename TWindow>
    friend LRESULT CALLBACK WindowProc(HWND, UINT, WPARAM, LPARAM) noexcept;

    enum EStatusPart { SP_PROMPT, SP_POINT, SP_UNITS };

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void CreateControls();
    void OnClose();
    void Layout();
    void ShowInStatus(EStatusPart part, const std::wstring& text);
    void TakeCommand();
    void EndPick(std::optional<SPoint> point);
    bool IsEscapeOfOurs(const MSG& message) const;

    HWND m_window = nullptr;
    HWND m_output = nullptr;
    HWND m_prompt = nullptr;
    HWND m_status = nullptr;
    CGdiObject m_font;
    std::unique_ptr<CDrawingView> m_drawing;
    std::function<void(const std::wstring&)> m_onCommand;
    bool m_busy = false;
    bool m_picking = false;
    bool m_pickEnded = false;
    std::optional<SPoint> m_picked;
};
