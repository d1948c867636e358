// Questions: answered by a click or a typed line, or not at all.
#include "tests/windows/devhost/window/WindowFixture.h"

using namespace tests;
using namespace devhost;

namespace {

class Ask : public CWindowFixture {
protected:
    Answer AskPoint() { return m_window.Ask(L"Where? ", std::nullopt, ASK_POINT); }
};

TEST_F(Ask, ATypedLineIsAnsweredAsItWasTyped) {
    PostLine(L" 12, x ");
    const Answer answer = AskPoint();
    ASSERT_TRUE(std::holds_alternative<std::wstring>(answer));
    EXPECT_EQ(std::get<std::wstring>(answer), L" 12, x ");
    EXPECT_EQ(TextOf(Part(IDC_PROMPT)), L"");
}

TEST_F(Ask, APlainEnterIsAnAnswerOfItsOwn) {
    PostKey(VK_RETURN);
    EXPECT_TRUE(std::holds_alternative<PlainEnter>(AskPoint()));
    PostKey(VK_RETURN, IDC_DRAWING);
    EXPECT_TRUE(std::holds_alternative<PlainEnter>(AskPoint()));
}

TEST_F(Ask, EscapeAndClosingCancel) {
    PostKey(VK_ESCAPE);
    EXPECT_TRUE(std::holds_alternative<Cancelled>(AskPoint()));
    PostMessageW(m_window.Handle(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(std::holds_alternative<Cancelled>(AskPoint()));
    EXPECT_TRUE(IsWindow(m_window.Handle()));
}

TEST_F(Ask, TheEndOfTheApplicationCancelsAndGoesOn) {
    PostQuitMessage(7);
    EXPECT_TRUE(std::holds_alternative<Cancelled>(AskPoint()));
    MSG message;
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7u);
}

TEST_F(Ask, AClickDoesNotAnswerAQuestionForText) {
    PostClick(50, 50);
    PostLine(L"900");
    const Answer answer = m_window.Ask(L"Width: ", std::nullopt, ASK_TEXT);
    EXPECT_TRUE(std::holds_alternative<std::wstring>(answer));
}

TEST_F(Ask, ThePromptIsShownWhileItWaitsAndTheAnswerAfterwards) {
    std::wstring label, hint;
    m_window.SetFormatHandler([&](int, int) {
        label = TextOf(Part(IDC_LABEL));
        hint = TextOf(Part(IDC_STATUS));
    });
    PostCommand(IDM_PRECISION + 1);
    PostClick(120, AreaHeight() - 1 - 45);
    AskPoint();
    EXPECT_EQ(label, L"Where?");
    EXPECT_EQ(hint, L"Where? ");
    EXPECT_EQ(TextOf(Part(IDC_LABEL)), L"LISP");
    EXPECT_EQ(Output(), L"Where? 120.0, 45.0");
    PostLine(L"abc");
    AskPoint();
    PostKey(VK_ESCAPE);
    AskPoint();
    EXPECT_EQ(Output(), L"Where? 120.0, 45.0\r\nWhere? abc\r\nWhere? (cancelled)");
}

TEST_F(Ask, WhileBusyThePromptTakesAnswersAndIsClosedAgain) {
    m_window.SetBusy(true);
    EXPECT_FALSE(IsWindowEnabled(Part(IDC_PROMPT)));
    PostLine(L"5");
    EXPECT_TRUE(std::holds_alternative<std::wstring>(AskPoint()));
    EXPECT_FALSE(IsWindowEnabled(Part(IDC_PROMPT)));
    m_window.SetBusy(false);
}

TEST_F(Ask, AfterAnAnswerTheStatusLineShowsAgainWhetherSomethingRuns) {
    m_window.SetBusy(true);
    const std::wstring running = TextOf(Part(IDC_STATUS));
    PostLine(L"1,2");
    AskPoint();
    EXPECT_EQ(TextOf(Part(IDC_STATUS)), running);
    m_window.SetBusy(false);
    const std::wstring idle = TextOf(Part(IDC_STATUS));
    EXPECT_NE(idle, running);
    PostLine(L"1,2");
    AskPoint();
    EXPECT_EQ(TextOf(Part(IDC_STATUS)), idle);
}

TEST_F(Ask, AnswersDoNotReachTheCommandHandler) {
    int commands = 0;
    m_window.SetCommandHandler([&](const std::wstring&) { ++commands; });
    PostLine(L"5");
    AskPoint();
    EXPECT_EQ(commands, 0);
    EXPECT_FALSE(m_window.IsAsking());
}

TEST_F(Ask, APointCanBeTypedInstead) {
    PostLine(L"120,3'");
    const auto point = m_window.PickPoint(L"p: ", std::nullopt);
    ASSERT_TRUE(point);
    EXPECT_EQ(*point, (Point{120, 36}));
}

TEST_F(Ask, ALengthGoesAlongTheLineThatFollowsTheMouse) {
    MoveMouse(10, AreaHeight() - 1 - 220);
    PostLine(L"50");
    const auto point = m_window.PickPoint(L"p: ", Point{10, 20});
    ASSERT_TRUE(point);
    ExpectNear(*point, 10, 70);
}

TEST_F(Ask, WhatIsNoPointIsRefusedAndAskedForAgain) {
    PostLine(L"there");
    PostKey(VK_RETURN);
    PostLine(L"1,2");
    const auto point = m_window.PickPoint(L"p: ", std::nullopt);
    ASSERT_TRUE(point);
    EXPECT_EQ(*point, (Point{1, 2}));
    EXPECT_EQ(Output(),
              L"p: there\r\n'there' is not a point: click in the drawing or type X,Y\r\np: \r\np: 1,2");
}

}  // namespace
