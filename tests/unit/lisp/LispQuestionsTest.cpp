// What LISP asks of the user and of the program.
#include "tests/unit/lisp/LispFixture.h"

using namespace tests;
using namespace tavrin::lisp;

namespace {

class LispQuestions : public CLispTest {
protected:
    void Click(double x, double y) { m_host.answers.push_back({ANSWER_POINT, {x, y, 0}, L""}); }
    void Type(const std::wstring& text) { m_host.answers.push_back({ANSWER_TEXT, {}, text}); }
    void Enter() { m_host.answers.push_back({ANSWER_NOTHING, {}, L""}); }
};

TEST_F(LispQuestions, APointIsAskedFor) {
    Click(1, 2);
    ExpectValues({{L"(getpoint \"Where? \")", L"(1.0 2.0 0.0)"}});
    EXPECT_EQ(m_host.asked.back().prompt, L"Where? ");
    EXPECT_EQ(m_host.asked.back().question, Q_POINT);
    EXPECT_FALSE(m_host.asked.back().base);
    for (const wchar_t* call : {L"(getpoint '(5 6) \"Next: \")", L"(getpoint \"Next: \" '(5 6))"}) {
        Click(3, 4);
        ExpectValues({{call, L"(3.0 4.0 0.0)"}});
        EXPECT_EQ(m_host.asked.back().prompt, L"Next: ");
        EXPECT_EQ(m_host.asked.back().base->y, 6);
    }
    Enter();
    ExpectValues({{L"(getpoint)", L"nil"}});
    EXPECT_EQ(m_host.output, L"");
}

TEST_F(LispQuestions, AnAnswerThatDoesNotFitIsAskedForAgain) {
    Type(L"5");
    Type(L"a,b");
    Click(1, 2);
    ExpectValues({{L"(getpoint)", L"(1.0 2.0 0.0)"}});
    EXPECT_EQ(m_host.asked.size(), 3u);
    EXPECT_EQ(m_host.output,
              L"'5' is not a point: click in the drawing or type X,Y\n"
              L"'a,b' is not a point: click in the drawing or type X,Y\n");
}

TEST_F(LispQuestions, ADistanceIsTypedOrShownByOneOrTwoPoints) {
    Type(L"1'-3 1/2\"");
    ExpectValues({{L"(getdist \"How far? \")", L"15.5"}});
    EXPECT_EQ(m_host.asked.back().question, Q_DISTANCE);
    Click(3, 4);
    ExpectValues({{L"(getdist '(0 0) \"How far? \")", L"5.0"}});
    Click(1, 1);
    Click(4, 5);
    ExpectValues({{L"(getdist)", L"5.0"}});
    EXPECT_EQ(m_host.asked.back().prompt, L"Second point: ");
    EXPECT_EQ(m_host.asked.back().base->x, 1);
    Type(L"x");
    Enter();
    ExpectValues({{L"(getdist)", L"nil"}});
    EXPECT_EQ(m_host.output, L"'x' is not a distance: click in the drawing or type a length\n");
}

TEST_F(LispQuestions, NumbersAreTyped) {
    Type(L"3/4");
    ExpectValues({{L"(getreal \"Factor: \")", L"0.75"}});
    Type(L"x");
    Type(L"2");
    ExpectValues({{L"(getreal)", L"2.0"}});
    Type(L" +12 ");
    ExpectValues({{L"(getint \"Count: \")", L"12"}});
    for (const wchar_t* typed : {L"1.5", L"99999999999", L"", L"+-1", L"ù", L"-3"}) {
        Type(typed);
    }
    ExpectValues({{L"(getint)", L"-3"}});
    EXPECT_NE(m_host.output.find(L"'1.5' is not a whole number of 32 bits: type one such as 12\n"),
              std::wstring::npos);
    Enter();
    ExpectValues({{L"(getint)", L"nil"}});
}

TEST_F(LispQuestions, ATextIsTakenAsItIs) {
    Type(L" two words ");
    ExpectValues({{L"(getstring \"Name: \")", L"\" two words \""}});
    Type(L"x");
    ExpectValues({{L"(getstring T \"Name: \")", L"\"x\""}});
    EXPECT_EQ(m_host.asked.back().prompt, L"Name: ");
    Enter();
    ExpectValues({{L"(getstring)", L"\"\""}});
    Type(L"line");
    ExpectValues({{L"(read-line)", L"\"line\""}});
}

TEST_F(LispQuestions, EscapeCancelsTheEvaluationWithoutAPosition) {
    for (const wchar_t* question :
         {L"(getpoint)", L"(getdist)", L"(getreal)", L"(getint)", L"(getstring)", L"(read-line)"}) {
        EXPECT_EQ(ErrorOf(std::wstring(L"(defun ask () ") + question + L" (princ \"after\")) (ask)"),
                  L"cancelled");
    }
    Click(1, 1);
    EXPECT_EQ(ErrorOf(L"(getdist)"), L"cancelled") << "for the second point";
    EXPECT_EQ(m_host.output, L"");
}

TEST_F(LispQuestions, WrongArgumentsAreNamed) {
    ExpectErrors(
        {{L"(getpoint 5)", L"GETPOINT needs a point, a list of two or three numbers, as argument 1, not 5"},
         {L"(getpoint 1 2 3)", L"GETPOINT takes 0 to 2 arguments, not 3"},
         {L"(getreal '(0 0))", L"GETREAL needs a string as argument 1, not (0 0)"},
         {L"(getint 5)", L"GETINT needs a string as argument 1, not 5"},
         {L"(getstring T 5)", L"GETSTRING needs a string as argument 2, not 5"},
         {L"(alert 5)", L"ALERT needs a string as argument 1, not 5"},
         {L"(getvar 5)", L"GETVAR needs a string as argument 1, not 5"}});
}

TEST_F(LispQuestions, AlertsAndSystemVariablesAreTheHosts) {
    ExpectValues({{L"(alert \"Mind the gap\")", L"nil"},
                  {L"(setvar \"luPrec\" 3)", L"3"},
                  {L"(getvar \"LUPREC\")", L"3"},
                  {L"(getvar \"NONE\")", L"nil"}});
    EXPECT_EQ(m_host.alerts, std::vector<std::wstring>{L"Mind the gap"});
}

TEST_F(LispQuestions, TheNullHostAnswersNothing) {
    CNullLispHost host;
    CEvaluator evaluator(host);
    const auto evaluate = [&](const wchar_t* text) { return Print(*evaluator.Run(ReadText(text))); };
    EXPECT_EQ(evaluate(L"(princ \"a\") (alert \"b\") (list (open \"x\" \"w\") (findfile \"x\"))"),
              L"(nil nil)");
    EXPECT_THROW(evaluate(L"(getpoint)"), CLispCancelled);
    EXPECT_THROW(evaluate(L"(load \"x\")"), CLispError);
}

}  // namespace
