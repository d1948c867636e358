// The main window: the drawing area, the output, the prompt, a status line with a hint, the mouse's position
// in the drawing and the unit format, and a menu.
//
// Does not depend on LISP and plug-ins: input is passed to handlers. Everything happens on the thread that
// created the window. Handlers run within its message loop; a handler that takes long must call PollEscape
// regularly.
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
#include "devhost/window/MainMenu.h"
#include "devhost/window/OutputList.h"
#include "devhost/window/PromptHistory.h"
#include "devhost/window/PromptPaste.h"
#include "devhost/window/Scale.h"
#include "devhost/window/StatusLine.h"
#include "handles/GdiScopes.h"

namespace devhost {

// The kind of a question: a click in the drawing answers only the first, a typed line both.
enum EAsk { ASK_POINT, ASK_TEXT };

// The user cancelled, or the application is closing.
struct Cancelled {};
// Enter without a text.
struct PlainEnter {};
// A click, a typed line as it was typed, or one of the above.
using Answer = std::variant<Cancelled, PlainEnter, Point, std::wstring>;

class CMainWindow {
public:
    // Listens to the drawing, which must outlive the window. Throws CUserError when the window cannot be
    // created.
    explicit CMainWindow(CDrawing& drawing);
    ~CMainWindow();
    CMainWindow(const CMainWindow&) = delete;
    CMainWindow& operator=(const CMainWindow&) = delete;

    HWND Handle() const { return m_window; }
    void Show();
    // Runs the message loop until the window is closed.
    void Run();

    // Adds to the output: a line of its own, or a piece of text in which line feeds end lines.
    void AddOutput(std::wstring_view line) { m_output->AddLine(line); }
    void AddText(std::wstring_view text) { m_output->AddText(text); }

    // Called for Enter in the prompt with its text, which is not empty, unless a question is open.
    void SetCommandHandler(std::function<void(const std::wstring&)> onCommand);
    // Joins the lines of a text that is pasted into the prompt. Without it only the first line is pasted.
    void SetPasteHandler(JoinLines join) { m_joinLines = std::move(join); }
    // The entries of the menu Items, and the handler, which gets the index of the chosen one. Enter in the
    // empty prompt chooses the last one again.
    void SetItems(const std::vector<std::wstring>& titles, std::function<void(std::size_t)> onItem);
    // The entries of the menu Language, and the handler, which gets the index of the chosen one.
    void SetLanguages(const std::vector<std::wstring>& titles, std::function<void(std::size_t)> onLanguage);
    // The entry of the menu Language that is marked; nothing initially.
    void SetLanguage(std::optional<std::size_t> index) { m_language = index; }
    // The handlers of Plug-in > Reload, of Items > Rescan, and of Drawing > Save, which gets the file that
    // the user has chosen. Without one the command is disabled.
    void SetReloadHandler(std::function<void()> onReload);
    void SetRescanHandler(std::function<void()> onRescan) { m_onRescan = std::move(onRescan); }
    void SetSaveHandler(std::function<void(const std::wstring& path)> onSave) {
        m_onSave = std::move(onSave);
    }
    // Called about once a second while the user could start something.
    void SetIdleHandler(std::function<void()> onIdle) { m_onIdle = std::move(onIdle); }
    // Called for Escape when nothing runs and no question is open.
    void SetEscapeHandler(std::function<void()> onEscape) { m_onEscape = std::move(onEscape); }

    // Shows that the next line goes on with the lines before it.
    void SetUnfinished(bool unfinished);

    // The handler of Help > Documentation, which may come at any time.
    void SetHelpHandler(std::function<void()> onHelp) { m_onHelp = std::move(onHelp); }

    // The unit format of the status line, as values of LUNITS and LUPREC; initially 2 and 4.
    void SetFormat(int lunits, int luprec);
    // Called after the user has chosen another format in the status line.
    void SetFormatHandler(std::function<void(int lunits, int luprec)> onFormat);

    // Shows the whole drawing.
    void FitDrawing() { m_drawing->Fit(); }
    // The mouse's position in the drawing, where the rubber band ends.
    Point MousePoint() const { return m_drawing->MousePoint(); }

    // While busy, the prompt and the commands that start something are disabled, and the window does not
    // close. Calls nest.
    void SetBusy(bool busy);
    // To be called regularly while busy: handles the waiting messages, so that the window paints, zooms and
    // scrolls. True when Escape was pressed or the window or the application should close: the caller should
    // stop.
    bool PollEscape();

    bool IsAsking() const { return m_isAsking; }
    // Shows `prompt` beside the edit control and in the status line and handles messages until the answer.
    // With `base`, a rubber band leads from there to the mouse. Escape, closing the window and the end of the
    // application cancel. Prompt and answer are added to the output. Must not be called while another
    // question is open.
    Answer Ask(std::wstring_view prompt, std::optional<Point> base, EAsk what);
    // Asks for a point, clicked or typed (see TypedPoint.h), until there is one; nothing when cancelled.
    std::optional<Point> PickPoint(std::wstring_view prompt, std::optional<Point> base);

private:
    template <typename TWindow>
    friend LRESULT CALLBACK WindowProc(HWND, UINT, WPARAM, LPARAM) noexcept;

    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnClose();
    void OnCommand(int command);
    void OnItem(std::size_t index);
    void OnLanguage(std::size_t index);
    void OnRecent(std::size_t index);
    void OnTimer();
    void SaveDrawing();
    void ChooseFormat(int lunits, int luprec);
    void ClearDrawing();
    void ShowHelp();
    void ShowAbout();
    void UpdateMenu();
    // Sets the focus to the prompt, or to the drawing while the prompt is disabled.
    void Focus();
    // From the prompt to the drawing, and back.
    void SwitchFocus();
    // Shows the label of the prompt, the hint in the status line, and the example in the empty prompt.
    void ShowPrompt(const std::wstring& label, const std::wstring& hint, const wchar_t* example);
    // The prompt without a question.
    void ShowOwnPrompt();

    // MainWindowLayout.cpp
    void CreateControls();
    void CreateFonts();
    void ChangeResolution(int dotsPerInch, const RECT& rectangle);
    void Layout();
    void PaintBackground(HDC dc) const;
    HBRUSH PaintControl(HDC dc, HWND control) const;
    RECT Splitter() const;
    bool IsOverSplitter() const;
    void MoveSplitter(int y);

    // MainWindowAsk.cpp
    void Handle(MSG message);
    bool TakeMessage(MSG& message);
    bool TakeKey(const MSG& message);
    void TakeEscape();
    void TakeEnter();
    void EndAsk(Answer answer);
    std::wstring ShownAnswer() const;
    bool IsIdle() const { return m_busy == 0 && !m_isAsking; }

    HWND m_window = nullptr;
    HWND m_label = nullptr;
    HWND m_prompt = nullptr;
    CScale m_scale;
    tavrin::handles::GdiOwner m_textFont;
    tavrin::handles::GdiOwner m_codeFont;
    CDrawing& m_shown;
    std::unique_ptr<CMainMenu> m_menu;
    std::unique_ptr<CDrawingView> m_drawing;
    std::unique_ptr<COutputList> m_output;
    std::unique_ptr<CStatusLine> m_status;
    CPromptHistory m_history;
    int m_outputHeight;  // pixels
    bool m_isSplitterMoving = false;

    std::function<void(const std::wstring&)> m_onCommand;
    JoinLines m_joinLines;
    std::function<void(std::size_t)> m_onItem;
    std::function<void()> m_onReload;
    std::function<void()> m_onHelp;
    std::function<void(std::size_t)> m_onLanguage;
    std::size_t m_languageCount = 0;
    std::optional<std::size_t> m_language;
    std::function<void()> m_onRescan;
    std::function<void()> m_onIdle;
    std::function<void()> m_onEscape;
    std::function<void(const std::wstring&)> m_onSave;
    std::function<void(int, int)> m_onFormat;
    std::vector<std::wstring> m_titles;  // of the items
    std::vector<std::wstring> m_recent;  // titles of the items that were chosen, the last one first
    bool m_isInMenu = false;
    bool m_isUnfinished = false;

    int m_busy = 0;  // nesting level
    bool m_isEscapePressed = false;
    bool m_isAsking = false;
    bool m_isAnswered = false;
    Answer m_answer;
};

}  // namespace devhost
