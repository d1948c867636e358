// The window while something runs.
#include <windows.h>

#include <commctrl.h>

#include <string>

#include "tests/windows/devhost/window/WindowFixture.h"

using namespace tests;
using namespace devhost;

namespace {

class Busy : public CWindowFixture {
protected:
    Busy() {
        m_window.SetCommandHandler([this](const std::wstring&) { ++m_commands; });
        m_window.SetItems({L"Door"}, [this](std::size_t) { ++m_commands; });
        m_window.SetReloadHandler([this] { ++m_commands; });
        m_window.SetBusy(true);
    }
    ~Busy() override { m_window.SetBusy(false); }

    int m_commands = 0;
};

TEST_F(Busy, EscapeIsReportedOnce) {
    EXPECT_FALSE(Handle());
    PostKey(VK_ESCAPE, IDC_DRAWING);
    EXPECT_TRUE(Handle());
    EXPECT_FALSE(Handle());
}

TEST_F(Busy, ClosingStopsWhatRunsAndKeepsTheWindow) {
    PostMessageW(m_window.Handle(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(Handle());
    EXPECT_TRUE(IsWindow(m_window.Handle()));
}

TEST_F(Busy, TheEndOfTheApplicationStopsItEveryTime) {
    PostQuitMessage(0);
    EXPECT_TRUE(Handle());
    EXPECT_TRUE(Handle());
    MSG message;
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(Busy, NothingNewBegins) {
    SetWindowTextW(Part(IDC_PROMPT), L"(door)");
    PostKey(VK_RETURN);
    PostKey(VK_F5);
    PostCommand(IDM_ITEM);
    PostCommand(IDM_RELOAD);
    Handle();
    EXPECT_EQ(m_commands, 0);
    EXPECT_EQ(TextOf(Part(IDC_PROMPT)), L"(door)");
    m_drawing.Add(CircleEntity{{0, 0}, 1});
    PostCommand(IDM_CLEAR);
    Handle();
    EXPECT_FALSE(m_drawing.Entities().empty());
}

// Keeps what the edit control is given to show while it is empty: not every version of the control can be
// asked for it.
LRESULT CALLBACK KeepSuggestion(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                DWORD_PTR suggestion) {
    if (message == EM_SETCUEBANNER) {
        *reinterpret_cast<std::wstring*>(suggestion) = reinterpret_cast<const wchar_t*>(lParam);
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(Busy, TheEmptyPromptSuggestsNothing) {
    std::wstring suggestion = L"nothing was set";
    SetWindowSubclass(Part(IDC_PROMPT), KeepSuggestion, 0, DWORD_PTR(&suggestion));
    m_window.SetItems({L"Window", L"Door"}, nullptr);
    EXPECT_EQ(suggestion, L"");
    m_window.SetBusy(false);
    EXPECT_EQ(suggestion, L"for example (Window)");
    m_window.SetBusy(true);
    EXPECT_EQ(suggestion, L"");
    RemoveWindowSubclass(Part(IDC_PROMPT), KeepSuggestion, 0);
}

TEST_F(Busy, EndsWithTheLastOfNestedCalls) {
    m_window.SetBusy(true);
    m_window.SetBusy(false);
    EXPECT_FALSE(IsWindowEnabled(Part(IDC_PROMPT)));
    m_window.SetBusy(false);
    EXPECT_TRUE(IsWindowEnabled(Part(IDC_PROMPT)));
    PostLine(L"(door)");
    Handle();
    EXPECT_EQ(m_commands, 1);
    m_window.SetBusy(true);
}

TEST_F(Busy, AnEscapeThatNobodyAskedForIsForgotten) {
    SendMessageW(m_window.Handle(), WM_CLOSE, 0, 0);
    m_window.SetBusy(false);
    m_window.SetBusy(true);
    EXPECT_FALSE(Handle());
}

TEST_F(Busy, TheViewStillMoves) {
    Wheel(100, 100, 1);
    PostCommand(IDM_FIT);
    EXPECT_FALSE(Handle());
    ExpectNear(PickAt(0, AreaHeight() - 1), 0, 0);
}

}  // namespace
