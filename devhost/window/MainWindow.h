// The main window: the drawing area, below it the list of outputs and the prompt that takes typed lines, a
// status line with a hint, the mouse's place in the drawing and the unit format, and a menu.
//
// Knows nothing of LISP and of plug-ins: what is typed and chosen goes to handlers. Everything happens on
// the thread that made the window. Handlers run within its message loop; one that takes long calls
// PollEscape now and then.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "devhost/window/DrawingView.h"
#include "devhost/window/GdiScope.h"
#include "devhost/window/MainMenu.h"
#include "devhost/window/OutputList.h"
#include "devhost/window/PromptHistory.h"
#include "devhost/window/PromptPaste.h"
#include "devhost/window/Scale.h"
#include "devhost/window/StatusLine.h"

// What a question is about: a click into the drawing answers the first alone, a typed line both.
enum EAsk { ASK_POINT, ASK_TEXT };

// The user did not want to answer, or the application is ending.
struct SCancelled {};
// Enter, without a text.
struct SPlainEnter {};
// A click, a typed line as it was typed, or one of the above.
using CAnswer = std::variant<SCancelled, SPlainEnter, SPoint, std::wstring>;

class CMainWindow {
public:
    // Shows the drawing, which must outlive the window and has the window as its listener. Throws CUserError
    // when there can be no window.
    explicit CMainWindow(CDrawing& drawing);
    ~CMainWindow();
    CMainWindow(const CMainWindow&) = delete;
    CMainWindow& operator=(const CMainWindow&) = delete;

    HWND Handle() const { return m_window; }
    void Show();
    // Runs until the window has been closed.
    void Run();

    // Adds to the list of outputs: a line of its own, or a piece of text in which line feeds end lines.
    void AddOutput(std::wstring_view line) { m_output->AddLine(line); }
    void AddText(std::wstring_view text) { m_output->AddText(text); }

    // What Enter in the prompt does with its text when nothing is being asked. Never with an empty one.
    void SetCommandHandler(std::function<void(const std::wstring&)> onCommand);
    // How a text of several lines that is pasted into the prompt becomes one; without it the first line
    // counts.
    void SetPasteHandler(CJoinLines join) { m_joinLines = std::move(join); }
    // The entries of the menu Items, and what choosing one does with its index.
    void SetItems(const std::vector<std::wstring>& titles, std::function<void(std::size_t)> onItem);
    // What Plug-in > Reload does; without a handler it is grey.
    void SetReloadHandler(std::function<void()> onReload);

    // The unit format of the status line, by the values of LUNITS and LUPREC; at first 2 and 4.
    void SetFormat(int lunits, int luprec);
    // Called when the user has chosen another format in the status line, which shows it already.
    void SetFormatHandler(std::function<void(int lunits, int luprec)> onFormat);

    // Shows the whole drawing.
    void FitDrawing() { m_drawing->Fit(); }
    // The mouse's place in the drawing, where the rubber band ends.
    SPoint MousePoint() const { return m_drawing->MousePoint(); }

    // While busy the prompt takes nothing, the menu's commands that begin something are grey and the window
    // does not close. Calls nest: as many must say that it is over.
    void SetBusy(bool busy);
    // To be called now and then by what runs while busy: handles the messages that are waiting, so that the
    // window paints, zooms and scrolls. True when Escape was pressed, the window should close or the
    // application is ending: what is running should stop.
    bool PollEscape();

    bool IsAsking() const { return m_isAsking; }
    // Shows `prompt` beside the prompt's edit and in the status line and waits for the answer, with messages
    // of all windows going on meanwhile. With `base` a line follows the mouse from there. Cancelled by
    // Escape, by closing the window and by the application's end. Prompt and answer go to the list of
    // outputs. Not while another question is waiting.
    CAnswer Ask(std::wstring_view prompt, std::optional<SPoint> base, EAsk what);
    // Asks for a point until there is one, clicked or typed (TypedPoint.h says how); nothing when cancelled.
    std::optional<SPoint> PickPoint(std::wstring_view prompt, std::optional<SPoint> base);

private:
    template <typename TWindow>
    friend LRESULT CALLBACK WindowProc(HWND, UINT, WPARAM, LPARAM) noexcept;

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnClose();
    void OnCommand(int command);
    void OnItem(std::size_t index);
    void ChooseFormat(int lunits, int luprec);
    void ClearDrawing();
    void ShowAbout();
    void UpdateMenu();
    // The focus goes where typing makes sense.
    void Focus();
    // Beside the prompt, in the status line, and in the prompt as long as it is empty.
    void ShowPrompt(const std::wstring& label, const std::wstring& hint, const wchar_t* example);
    // What stands there when nothing is being asked.
    void ShowOwnPrompt();

    // MainWindowLayout.cpp
    void CreateControls();
    void Layout();
    void PaintBackground(HDC dc) const;
    HBRUSH PaintControl(HDC dc, HWND control) const;
    RECT Strip() const;
    bool IsOverStrip() const;
    void MoveStrip(int y);

    // MainWindowAsk.cpp
    void Handle(MSG message);
    bool TakeMessage(MSG& message);
    bool TakeKey(const MSG& message);
    void TakeEscape();
    void TakeEnter();
    void EndAsk(CAnswer answer);
    std::wstring ShownAnswer() const;
    bool IsIdle() const { return m_busy == 0 && !m_isAsking; }

    HWND m_window = nullptr;
    HWND m_label = nullptr;
    HWND m_prompt = nullptr;
    CScale m_scale;
    CGdiObject m_textFont;
    CGdiObject m_codeFont;
    CDrawing& m_shown;
    std::unique_ptr<CMainMenu> m_menu;
    std::unique_ptr<CDrawingView> m_drawing;
    std::unique_ptr<COutputList> m_output;
    std::unique_ptr<CStatusLine> m_status;
    CPromptHistory m_history;
    int m_outputHeight;  // pixels
    bool m_isStripMoving = false;

    std::function<void(const std::wstring&)> m_onCommand;
    CJoinLines m_joinLines;
    std::function<void(std::size_t)> m_onItem;
    std::function<void()> m_onReload;
    std::function<void(int, int)> m_onFormat;
    std::size_t m_itemCount = 0;

    int m_busy = 0;  // how many times
    bool m_isEscapePressed = false;
    bool m_isAsking = false;
    bool m_isAnswered = false;
    CAnswer m_answer;
};
