// The prompt, what it remembers, and the list of outputs.
#include <windows.h>
#include "devhost/window/PromptHistory.h"

#include <commctrl.h>

#include "tests/windows/devhost/window/WindowFixture.h"

using namespace tests;
using namespace devhost;

namespace {

class PromptRow : public CWindowFixture {
protected:
    PromptRow() {
        m_window.SetCommandHandler([this](const std::wstring& text) { m_commands.push_back(text); });
    }

    std::wstring Shown() const { return TextOf(Part(IDC_PROMPT)); }
    std::wstring After(WPARAM key) {
        PostKey(key);
        Handle();
        return Shown();
    }

    std::vector<std::wstring> m_commands;
};

TEST_F(PromptRow, EnterPassesTheLineOn) {
    PostLine(L"(door)");
    Handle();
    EXPECT_EQ(m_commands, std::vector<std::wstring>{L"(door)"});
    EXPECT_EQ(Shown(), L"");
    PostKey(VK_RETURN);
    Handle();
    EXPECT_EQ(m_commands.size(), 1u);
}

TEST_F(PromptRow, AnUnfinishedExpressionIsShownAndEscapeIsToldOf) {
    int escapes = 0;
    m_window.SetItems({L"door"}, [](std::size_t) { FAIL() << "Enter is for the expression"; });
    m_window.SetEscapeHandler([&] { ++escapes; });
    EXPECT_EQ(TextOf(Part(IDC_LABEL)), L"LISP");
    m_window.SetUnfinished(true);
    EXPECT_EQ(TextOf(Part(IDC_LABEL)), L"LISP (");
    PostKey(VK_RETURN);
    PostKey(VK_ESCAPE);
    Handle();
    EXPECT_EQ(escapes, 1);
    m_window.SetUnfinished(false);
    EXPECT_EQ(TextOf(Part(IDC_LABEL)), L"LISP");
}

TEST_F(PromptRow, UpAndDownWalkThroughWhatWasTyped) {
    for (const wchar_t* line : {L"1", L"2", L"2", L"3"}) {
        PostLine(line);
    }
    Handle();
    SetWindowTextW(Part(IDC_PROMPT), L"draft");
    EXPECT_EQ(After(VK_UP), L"3");
    EXPECT_EQ(After(VK_UP), L"2");
    EXPECT_EQ(After(VK_UP), L"1");
    EXPECT_EQ(After(VK_UP), L"1");
    EXPECT_EQ(After(VK_DOWN), L"2");
    EXPECT_EQ(After(VK_DOWN), L"3");
    EXPECT_EQ(After(VK_DOWN), L"draft");
    EXPECT_EQ(After(VK_DOWN), L"draft");
}

TEST_F(PromptRow, ALineFromBeforeCanBeSentAgain) {
    PostLine(L"(door)");
    PostKey(VK_UP);
    PostKey(VK_RETURN);
    Handle();
    EXPECT_EQ(m_commands, (std::vector<std::wstring>{L"(door)", L"(door)"}));
    EXPECT_EQ(After(VK_UP), L"(door)");
    EXPECT_EQ(After(VK_UP), L"(door)");
}

TEST_F(PromptRow, EscapeEmptiesIt) {
    SetWindowTextW(Part(IDC_PROMPT), L"draft");
    EXPECT_EQ(After(VK_ESCAPE), L"");
}

TEST_F(PromptRow, WhatIsTypedElsewhereLandsThere) {
    PostMessageW(Part(IDC_OUTPUT), WM_CHAR, L'(', 0);
    PostMessageW(Part(IDC_DRAWING), WM_CHAR, L'a', 0);
    Handle();
    EXPECT_EQ(Shown(), L"(a");
}

TEST_F(PromptRow, F6GoesToTheDrawingAndBack) {
    ASSERT_EQ(GetFocus(), Part(IDC_PROMPT));
    PostKey(VK_F6);
    Handle();
    EXPECT_EQ(GetFocus(), Area());
    PostKey(VK_F6, IDC_DRAWING);
    Handle();
    EXPECT_EQ(GetFocus(), Part(IDC_PROMPT));
}

TEST_F(PromptRow, WhileItIsDisabledF6StaysInTheDrawing) {
    m_window.SetBusy(true);
    PostKey(VK_F6, IDC_DRAWING);
    Handle();
    EXPECT_EQ(GetFocus(), Area());
    m_window.SetBusy(false);
    EXPECT_EQ(GetFocus(), Part(IDC_PROMPT));
}

TEST_F(PromptRow, TheListOfOutputsTakesLinesAndPieces) {
    m_window.AddText(L"one\ntwo\n");
    EXPECT_EQ(Output(), L"one\r\ntwo");
    m_window.AddText(L"th");
    m_window.AddText(L"ree");
    m_window.AddOutput(L"four");
    m_window.AddOutput(L"five");
    m_window.AddText(L"\n");
    m_window.AddText(L"");
    m_window.AddText(L"six");
    EXPECT_EQ(Output(), L"one\r\ntwo\r\nthree\r\nfour\r\nfive\r\n\r\nsix");
}

TEST_F(PromptRow, PageUpScrollsTheListOfOutputs) {
    for (int line = 0; line < 100; ++line) {
        m_window.AddOutput(std::to_wstring(line));
    }
    const auto firstLine = [&] { return SendMessageW(Part(IDC_OUTPUT), EM_GETFIRSTVISIBLELINE, 0, 0); };
    const LRESULT atEnd = firstLine();
    EXPECT_GT(atEnd, 50);
    After(VK_PRIOR);
    EXPECT_LT(firstLine(), atEnd);
    After(VK_NEXT);
    EXPECT_EQ(firstLine(), atEnd);
}

TEST(PromptHistory, KeepsTheLatestLinesAlone) {
    CPromptHistory history;
    for (int line = 0; line < 300; ++line) {
        history.Add(std::to_wstring(line));
    }
    std::wstring shown;
    for (int step = 0; step < 300; ++step) {
        shown = history.Older(shown);
    }
    EXPECT_EQ(shown, L"100");
}

TEST_F(PromptRow, StaysInSightWithTheStatusLineInTheSmallestWindow) {
    SetWindowPos(m_window.Handle(), nullptr, 0, 0, 250, 200, SWP_NOMOVE | SWP_NOZORDER);
    RECT client;
    GetClientRect(m_window.Handle(), &client);
    for (const EControl part : {IDC_DRAWING, IDC_OUTPUT, IDC_LABEL, IDC_PROMPT, IDC_STATUS}) {
        RECT rectangle;
        GetWindowRect(Part(part), &rectangle);
        MapWindowPoints(nullptr, m_window.Handle(), reinterpret_cast<POINT*>(&rectangle), 2);
        EXPECT_GT(rectangle.right - rectangle.left, 30) << part;
        EXPECT_GT(rectangle.bottom - rectangle.top, 10) << part;
        EXPECT_LE(rectangle.right, client.right) << part;
        EXPECT_LE(rectangle.bottom, client.bottom) << part;
    }
    // Each part of the status line shows at least its first words.
    int ends[4] = {};
    ASSERT_EQ(SendMessageW(Part(IDC_STATUS), SB_GETPARTS, 4, reinterpret_cast<LPARAM>(ends)), 4);
    EXPECT_GT(ends[0], 30);
}

}  // namespace
