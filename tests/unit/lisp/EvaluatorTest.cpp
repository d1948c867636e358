// Evaluation of calls with the functions of a table.
#include <string>

#include "tests/unit/lisp/LispFixture.h"

using namespace tests;
using namespace tavrin::lisp;

namespace {

class Evaluator : public CLispTest {
protected:
    Evaluator() {
        m_evaluator.Define(L"nothing", [](std::span<const CValue>) -> LispResult { return {}; });
        m_evaluator.Define(L"fail",
                           [](std::span<const CValue>) -> LispResult { throw CLispError(L"as asked"); });
    }

    static std::wstring Unknown(const std::wstring& name) {
        return L"line 1: the function " + name +
               L" is not defined: check its name and whether the plug-in defines it";
    }
};

TEST_F(Evaluator, ConstantsAreTheirOwnValue) {
    for (const wchar_t* text : {L"42", L"-1.5", L"\"text\"", L"nil", L"T"}) {
        EXPECT_EQ(Evaluate(text), text);
    }
}

TEST_F(Evaluator, KnowsTheNamesThatCallAFunction) {
    Evaluate(L"(progn (defun mine () 1) (setq list-of-mine '(lambda () 2) other 5 data '(1 2)))");
    for (const wchar_t* name : {L"MINE", L"LIST-OF-MINE", L"CAR", L"SETQ", L"NOTHING"}) {
        EXPECT_TRUE(m_evaluator.IsFunction(name)) << name;
    }
    for (const wchar_t* name : {L"OTHER", L"DATA", L"UNKNOWN", L"T"}) {
        EXPECT_FALSE(m_evaluator.IsFunction(name)) << name;
    }
}

TEST_F(Evaluator, QuoteLeavesItsArgumentAsItIs) {
    EXPECT_EQ(Evaluate(L"'(1 . a)"), L"(1 . A)");
    EXPECT_EQ(Evaluate(L"(quote (unknown 1))"), L"(UNKNOWN 1)");
    for (const wchar_t* text : {L"(quote)", L"(quote 1 2)", L"(quote . 1)"}) {
        EXPECT_EQ(ErrorOf(text), L"line 1: QUOTE takes one argument");
    }
}

TEST_F(Evaluator, ACallGetsItsArgumentsEvaluated) {
    EXPECT_EQ(Evaluate(L"(list)"), L"nil");
    EXPECT_EQ(Evaluate(L"(LIST 1 \"a\" 'b (list 2.5 nil))"), L"(1 \"a\" B (2.5 nil))");
}

TEST_F(Evaluator, AFunctionMayGiveNoResult) {
    EXPECT_EQ(Evaluate(L"(nothing 1)"), L"; no result");
    EXPECT_EQ(ErrorOf(L"(list (nothing))"), L"line 1: (NOTHING), an argument of LIST, has no result");
}

TEST_F(Evaluator, ErrorsNameWhatTheyAreAbout) {
    EXPECT_EQ(ErrorOf(L"(unknown 1)"), Unknown(L"UNKNOWN"));
    EXPECT_EQ(ErrorOf(L"(list (unknown))"), Unknown(L"UNKNOWN"));
    EXPECT_EQ(ErrorOf(L"(5 1)"), L"line 1: 5 is not the name of a function");
    EXPECT_EQ(ErrorOf(L"((list) 1)"), L"line 1: (LIST) is not the name of a function");
    EXPECT_EQ(ErrorOf(L"(nil)"), L"line 1: nil is not the name of a function");
    EXPECT_EQ(ErrorOf(L"(list 1 . 2)"), L"line 1: the call of LIST ends in a dot and 2");
    EXPECT_EQ(ErrorOf(L"(fail)"), L"line 1: as asked");
}

TEST_F(Evaluator, ANameIsDefinedOnceAndTakenAwayOnce) {
    const auto one = [](std::span<const CValue>) -> LispResult { return CValue::Integer(1); };
    EXPECT_TRUE(m_evaluator.Define(L"one", one));
    EXPECT_FALSE(m_evaluator.Define(L"ONE", one));
    EXPECT_EQ(Evaluate(L"(one)"), L"1");
    EXPECT_TRUE(m_evaluator.Undefine(L"One"));
    EXPECT_FALSE(m_evaluator.Undefine(L"one"));
    EXPECT_EQ(ErrorOf(L"(one)"), Unknown(L"ONE"));
}

TEST_F(Evaluator, WhatLispMadeOfANameGivesWayToTheProgramsFunctionButIsNotTakenAway) {
    const auto one = [](std::span<const CValue>) -> LispResult { return CValue::Integer(1); };
    EXPECT_TRUE(m_evaluator.Define(L"one", one));
    EXPECT_EQ(Evaluate(L"(defun one () 2) (one)"), L"2");
    EXPECT_FALSE(m_evaluator.Undefine(L"one"));
    EXPECT_EQ(Evaluate(L"(one)"), L"2");
    EXPECT_TRUE(m_evaluator.Define(L"one", one));
    EXPECT_EQ(Evaluate(L"(one)"), L"1");
    EXPECT_EQ(Evaluate(L"(setq one car) (one '(3))"), L"3");
    EXPECT_FALSE(m_evaluator.Undefine(L"one"));
    EXPECT_TRUE(m_evaluator.Define(L"one", one));
    EXPECT_FALSE(m_evaluator.Define(L"car", one)) << "a built-in function";
}

TEST_F(Evaluator, WhatIsNoNameIsNotDefined) {
    const auto one = [](std::span<const CValue>) -> LispResult { return CValue::Integer(1); };
    for (const wchar_t* name : {L"", L"5", L"nil", L"t", L"quote", L"a b", L"(a"}) {
        EXPECT_FALSE(m_evaluator.Define(name, one)) << testing::PrintToString(name);
    }
}

TEST_F(Evaluator, AFunctionMayTakeItselfAway) {
    m_evaluator.Define(L"once", [this, big = std::wstring(100, L'x')](std::span<const CValue>) -> LispResult {
        m_evaluator.Undefine(L"once");
        return CValue::String(big);
    });
    EXPECT_EQ(Evaluate(L"(once)"), L'"' + std::wstring(100, L'x') + L'"');
    EXPECT_EQ(ErrorOf(L"(once)"), Unknown(L"ONCE"));
}

}  // namespace
