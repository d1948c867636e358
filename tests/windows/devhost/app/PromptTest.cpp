// DevHost without --eval: LISP typed at the prompt, results in the list above it.
#include <gtest/gtest.h>

#include <cstring>

#include "tests/windows/devhost/app/HostProcess.h"

using namespace tests;

namespace {

constexpr int kOutput = 101;
constexpr int kPrompt = 102;

class Prompt : public testing::Test {
protected:
    Prompt()
        : m_host({}),
          m_output(m_host.Control(L"Edit", kOutput)),
          m_prompt(m_host.Control(L"Edit", kPrompt)) {}

    void Type(const std::wstring& text) const {
        SendMessageW(m_prompt, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
        PostMessageW(m_prompt, WM_KEYDOWN, VK_RETURN, 0);
    }

    bool WaitForOutput(const std::wstring& text) const {
        return WaitUntil([&] { return TextOf(m_output) == text; });
    }

    Outcome Close() {
        PostMessageW(m_host.MainWindow(), WM_CLOSE, 0, 0);
        return m_host.Wait();
    }

    CHostProcess m_host;
    HWND m_output;
    HWND m_prompt;
};

TEST_F(Prompt, EnterEvaluatesAndClosingEnds) {
    Type(L"(echo 1 \"two\")");
    EXPECT_TRUE(WaitForOutput(L"(echo 1 \"two\")\r\n(1 \"two\")"));
    EXPECT_EQ(TextOf(m_prompt), L"");
    Type(L"(give-nothing)");
    EXPECT_TRUE(WaitForOutput(L"(echo 1 \"two\")\r\n(1 \"two\")\r\n(give-nothing)\r\n; no result"));
    const Outcome outcome = Close();
    EXPECT_EQ(outcome.status, 0u);
    EXPECT_EQ(outcome.output,
              "(echo 1 \"two\")\n(1 \"two\")\n(give-nothing)\n; no result\n; heap: 0 blocks held\n");
}

TEST_F(Prompt, MistakesAreShownAndDoNotEndTheSession) {
    Type(L"unknown)");
    EXPECT_TRUE(
        WaitForOutput(L"unknown)\r\n; error: line 1, column 8: a closing parenthesis has no opening one"));
    Type(L"(fail-with \"no\")");
    EXPECT_TRUE(WaitUntil([&] { return TextOf(m_output).ends_with(L"(fail-with \"no\")\r\n; error: no"); }));
    Type(L"(car 5)");
    EXPECT_TRUE(WaitUntil([&] {
        return TextOf(m_output).ends_with(L"; error: line 1: CAR needs a list as argument 1, not 5");
    }));
    EXPECT_EQ(Close().status, 0u);
}

TEST_F(Prompt, WhileACallRunsThePromptTakesNothingAndTheWindowStays) {
    Type(L"(alert-with \"wait\")");
    const HWND box = m_host.WindowWithTitle(L"#32770", L"DevHost");
    ASSERT_NE(box, nullptr);
    EXPECT_FALSE(IsWindowEnabled(m_prompt));
    SendMessageW(m_host.MainWindow(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(IsWindow(m_prompt));
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(WaitForOutput(L"(alert-with \"wait\")\r\n; alert: wait\r\n5100"));
    EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(m_prompt) != FALSE; }));
    EXPECT_EQ(Close().status, 0u);
}

TEST_F(Prompt, AnEmptyLineDoesNothing) {
    Type(L"");
    Type(L"5");
    EXPECT_TRUE(WaitForOutput(L"5\r\n5"));
    Close();
}

TEST_F(Prompt, LeakedBlocksMakeTheEndAFailure) {
    Type(L"(leak 1 8)");
    EXPECT_TRUE(WaitForOutput(L"(leak 1 8)\r\nnil"));
    const Outcome outcome = Close();
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.output, "(leak 1 8)\nnil\n; heap: 1 block held, 8 bytes\n");
}

// The top of the list's last character, in client coordinates; outside the client area when it is not
// visible.
int BottomOfText(HWND output) {
    const auto position =
        static_cast<DWORD>(SendMessageW(output, EM_POSFROMCHAR, TextOf(output).size() - 1, 0));
    return static_cast<short>(HIWORD(position));
}

TEST_F(Prompt, InASmallWindowPromptAndLastLineStayInSight) {
    for (int i = 0; i < 20; ++i) {
        Type(L"\"" + std::wstring(100, L'x') + L"\"");
        ASSERT_TRUE(WaitUntil([&] { return TextOf(m_prompt).empty(); }));
    }
    ASSERT_TRUE(WaitUntil([&] { return TextOf(m_output).ends_with(L"x\""); }));
    const auto rectOf = [](HWND window) {
        RECT rect;
        GetWindowRect(window, &rect);
        return rect;
    };
    SetWindowPos(m_host.MainWindow(), nullptr, 0, 0, 50, 50, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    ASSERT_TRUE(WaitUntil([&] { return rectOf(m_host.MainWindow()).right < 1000; }));
    const RECT prompt = rectOf(m_prompt);
    const RECT window = rectOf(m_host.MainWindow());
    EXPECT_GT(prompt.right - prompt.left, 200);
    EXPECT_GT(prompt.bottom - prompt.top, 10);
    EXPECT_LT(prompt.bottom, window.bottom);
    const RECT output = rectOf(m_output);
    EXPECT_GE(BottomOfText(m_output), 0);
    EXPECT_LT(BottomOfText(m_output), output.bottom - output.top);
    Close();
}

void PutOnClipboard(const std::wstring& text) {
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    std::memcpy(GlobalLock(memory), text.c_str(), bytes);
    GlobalUnlock(memory);
    ASSERT_TRUE(WaitUntil([] { return OpenClipboard(nullptr) != FALSE; }));
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

TEST_F(Prompt, PastedLinesOfLispBecomeOne) {
    PutOnClipboard(L"(defun f (x) ; doubles\r\n  (* 2 x))\r\n(f 4)\r\n");
    SendMessageW(m_prompt, WM_PASTE, 0, 0);
    EXPECT_EQ(TextOf(m_prompt), L"(defun f (x) (* 2 x)) (f 4)");
    PutOnClipboard(L" ; one line as it is");
    SendMessageW(m_prompt, WM_PASTE, 0, 0);
    EXPECT_EQ(TextOf(m_prompt), L"(defun f (x) (* 2 x)) (f 4) ; one line as it is");
    PostMessageW(m_prompt, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_TRUE(WaitUntil([&] { return TextOf(m_output).ends_with(L"\r\nF\r\n8"); }));
    Close();
}

TEST_F(Prompt, TheListOfOutputsForgetsWhatIsLongPast) {
    const std::wstring line = L"\"" + std::wstring(5'000, L'x') + L"\"";
    for (int i = 0; i < 9; ++i) {
        Type(line);
        ASSERT_TRUE(WaitUntil([&] { return TextOf(m_prompt).empty(); }));
    }
    EXPECT_GT(TextOf(m_output).size(), 40'000u);
    Type(L"(echo 7)");
    EXPECT_TRUE(WaitUntil([&] { return TextOf(m_output).ends_with(L"(echo 7)\r\n(7)"); }));
    EXPECT_LT(TextOf(m_output).size(), 65'000u);
    Close();
}

}  // namespace
