// LISP's assignments, definitions, branches and loops, and the functions that evaluate and call.
#include "tests/unit/lisp/LispFixture.h"

using namespace tests;
using namespace tavrin::lisp;

namespace {

using LispControl = CLispTest;

TEST_F(LispControl, WhatWasNotAssignedIsNil) {
    ExpectValues({{L"door", L"nil"}, {L"(list door)", L"(nil)"}, {L"(boundp 'door)", L"nil"}});
}

TEST_F(LispControl, SetqAssignsInOrderAndGivesTheLastValue) {
    ExpectValues({{L"(setq a 1 b (+ a 1))", L"2"},
                  {L"(list a b)", L"(1 2)"},
                  {L"(setq)", L"nil"},
                  {L"(set 'c 5) c", L"5"},
                  {L"(set (read \"d\") 6) d", L"6"},
                  {L"(boundp 'c)", L"T"}});
    ExpectErrors({{L"(setq a)", L"write (setq NAME VALUE ...)"},
                  {L"(setq 5 1)", L"SETQ cannot assign to 5: it is not a symbol"},
                  {L"(setq t 1)", L"T cannot be assigned to"},
                  {L"(setq nil 1)", L"SETQ cannot assign to nil: it is not a symbol"},
                  {L"(set 5 1)", L"SET needs a symbol as argument 1, not 5"}});
}

TEST_F(LispControl, QuoteAndFunctionKeepWhatFollows) {
    ExpectValues({{L"(quote (a b))", L"(A B)"},
                  {L"(function car)", L"CAR"},
                  {L"(mapcar (function (lambda (x) (* x x))) '(1 2 3))", L"(1 4 9)"}});
    ExpectErrors({{L"(function)", L"QUOTE takes one argument"}});
}

TEST_F(LispControl, AFunctionHasParametersAndLocals) {
    ExpectValues({{L"(defun area (w h / result) (setq result (* w h)) result)", L"AREA"},
                  {L"(area 3 4)", L"12"},
                  {L"(setq result 1 w 2) (area 5 5) (list result w h)", L"(1 2 nil)"},
                  {L"(defun nothing ()) (nothing)", L"nil"},
                  {L"(defun locals (/ a) a) (setq a 1) (locals)", L"nil"}});
    ExpectErrors({{L"(area 1)", L"AREA takes 2 arguments, not 1"},
                  {L"(area 1 2 3)", L"AREA takes 2 arguments, not 3"},
                  {L"(defun f (5))", L"F cannot have 5 as a parameter"},
                  {L"(defun f (t))", L"F cannot have T as a parameter"},
                  {L"(defun f x)", L"F has X instead of a list of parameters"},
                  {L"(defun f (a . b))", L"F has (A . B) instead of a list of parameters"},
                  {L"(defun f (a / b / c))", L"F has more than one slash in its list of parameters"},
                  {L"(defun f)", L"write (defun NAME (PARAMETERS / LOCALS) BODY ...)"},
                  {L"(defun 5 ())", L"write (defun NAME (PARAMETERS / LOCALS) BODY ...)"},
                  {L"(defun t ())", L"T cannot be assigned to"}});
}

TEST_F(LispControl, ScopeIsDynamic) {
    ExpectValues({{L"(defun inner () x) (defun outer (x) (inner)) (setq x 1) (outer 2)", L"2"},
                  {L"x", L"1"},
                  {L"(defun change () (setq x 5)) (defun hides (/ x) (change) x) (hides)", L"5"},
                  {L"x", L"1"}});
}

TEST_F(LispControl, VariablesComeBackAfterAnErrorInAFunction) {
    ExpectValues({{L"(setq x 1) (defun bad (x) (car x))", L"BAD"}});
    EXPECT_EQ(ErrorOf(L"(bad 5)"), L"line 1 in BAD: CAR needs a list as argument 1, not 5");
    ExpectValues({{L"x", L"1"}, {L"(foreach x '(7 8) x)", L"8"}, {L"x", L"1"}});
    ErrorOf(L"(foreach x '(7 8) (car x))");
    ExpectValues({{L"x", L"1"}});
}

TEST_F(LispControl, FunctionsAreValues) {
    ExpectValues({{L"(setq add +) (add 1 2)", L"3"},
                  {L"(defun twice (f x) (f (f x))) (twice 1+ 5)", L"7"},
                  {L"((lambda (x y) (- x y)) 5 3)", L"2"},
                  {L"(setq f '(lambda (x) (* x 2))) (f 4)", L"8"},
                  {L"(setq f (lambda (x / y) (setq y x) y)) (f 4)", L"4"},
                  {L"car", L"<function CAR>"},
                  {L"if", L"<function IF>"},
                  {L"(lambda (x) x)", L"<function LAMBDA>"}});
}

TEST_F(LispControl, WhatIsNoFunctionIsNamed) {
    EXPECT_EQ(ErrorOf(L"(defun f (list) (list 1)) (mapcar 'f '(1))"),
              L"line 1 in F: LIST is not a function: its value is 1");
    ExpectErrors({{L"(setq five 5) (five)", L"FIVE is not a function: its value is 5"},
                  {L"(apply nil nil)", L"nil is not the name of a function"},
                  {L"(apply \"car\" nil)", L"\"car\" is not the name of a function"},
                  {L"('(lambda (x) x) 5)", L"(QUOTE (LAMBDA (X) X)) is not the name of a function"},
                  {L"(lambda)", L"write (lambda (PARAMETERS / LOCALS) BODY ...)"}});
}

TEST_F(LispControl, IfTakesOneOfTwoBranches) {
    ExpectValues({{L"(if T 1 2)", L"1"},
                  {L"(if nil 1 2)", L"2"},
                  {L"(if nil 1)", L"nil"},
                  {L"(if 0 1 2)", L"1"},
                  {L"(if '() (car 5) 'fine)", L"FINE"}});
    ExpectErrors({{L"(if)", L"write (if CONDITION THEN [ELSE])"},
                  {L"(if 1)", L"write (if CONDITION THEN [ELSE])"},
                  {L"(if 1 2 3 4)", L"write (if CONDITION THEN [ELSE])"}});
}

TEST_F(LispControl, CondTakesTheFirstClauseThatHolds) {
    ExpectValues({{L"(cond (nil 1) ((= 1 1) 2 3) (T (car 5)))", L"3"},
                  {L"(cond (nil 1))", L"nil"},
                  {L"(cond (5))", L"5"},
                  {L"(cond)", L"nil"}});
    ExpectErrors({{L"(cond 5)", L"write (cond (CONDITION BODY ...) ...)"},
                  {L"(cond ())", L"write (cond (CONDITION BODY ...) ...)"}});
}

TEST_F(LispControl, AndAndOrStopAsSoonAsTheyKnow) {
    ExpectValues({{L"(and 1 2)", L"T"},
                  {L"(and nil (car 5))", L"nil"},
                  {L"(and)", L"T"},
                  {L"(or nil 5 (car 5))", L"T"},
                  {L"(or nil nil)", L"nil"},
                  {L"(or)", L"nil"}});
}

TEST_F(LispControl, LoopsGiveTheirLastValue) {
    ExpectValues({{L"(setq n 0) (while (< n 5) (setq n (1+ n)) (* n n))", L"25"},
                  {L"(while nil 1)", L"nil"},
                  {L"(setq n 0) (repeat 3 (setq n (+ n 2)))", L"6"},
                  {L"(repeat 0 1)", L"nil"},
                  {L"(repeat -1 1)", L"nil"},
                  {L"(setq sum 0) (foreach n '(1 2 3) (setq sum (+ sum n)))", L"6"},
                  {L"(setq n 9) (foreach n '(1 2 3)) n", L"9"},
                  {L"(foreach n nil (car 5))", L"nil"},
                  {L"(progn 1 2 3)", L"3"},
                  {L"(progn)", L"nil"}});
    ExpectErrors({{L"(while)", L"write (while CONDITION BODY ...)"},
                  {L"(repeat 1.5 1)", L"REPEAT needs a whole number as its count, not 1.5"},
                  {L"(foreach n 5 1)", L"FOREACH needs a list to go through, not 5"},
                  {L"(foreach n '(1 . 2) 1)", L"FOREACH needs a list to go through, not (1 . 2)"},
                  {L"(foreach 5 '(1) 1)", L"write (foreach NAME LIST BODY ...)"},
                  {L"(foreach t '(1) 1)", L"T cannot be assigned to"}});
}

TEST_F(LispControl, EvalApplyAndMapcarCallFunctions) {
    ExpectValues({{L"(eval '(+ 1 2))", L"3"},
                  {L"(setq a 'b b 5) (eval a)", L"5"},
                  {L"(apply '+ '(1 2 3))", L"6"},
                  {L"(apply 'and '(1 nil))", L"nil"},
                  {L"(apply 'or (list nil 'x))", L"T"},
                  {L"(apply (lambda (a b) (list b a)) '(1 2))", L"(2 1)"},
                  {L"(mapcar '+ '(1 2 3) '(10 20))", L"(11 22)"},
                  {L"(mapcar '+ '(1 2 3) '(10) '(100 200))", L"(111)"},
                  {L"(mapcar 'car '((a 1) (b 2)))", L"(A B)"},
                  {L"(mapcar '1+ nil)", L"nil"}});
    ExpectErrors({{L"(apply '+ 5)", L"APPLY needs a list as argument 2, not 5"},
                  {L"(mapcar '1+ '(1 . 2))", L"MAPCAR needs a list as argument 2, not (1 . 2)"},
                  {L"(mapcar '1+)", L"MAPCAR takes at least 2 arguments, not 1"},
                  {L"(eval)", L"EVAL takes 1 argument, not 0"}});
}

TEST_F(LispControl, WithoutAResultThereIsNoValue) {
    m_evaluator.Define(L"nothing", [](std::span<const CValue>) -> LispResult { return {}; });
    ExpectValues({{L"(progn (nothing))", L"; no result"}});
    EXPECT_EQ(Evaluate(L"(if T (nothing))"), L"; no result");
    ExpectErrors({{L"(setq a (nothing))", L"(NOTHING), an argument of SETQ, has no result"},
                  {L"(if (nothing) 1)", L"(NOTHING), an argument of IF, has no result"},
                  {L"(mapcar 'nothing '(1))", L"a call of NOTHING has no result"}});
}

TEST_F(LispControl, ExitEndsEverythingWithAStatus) {
    const auto status = [&](const wchar_t* text) {
        try {
            Evaluate(text);
        } catch (const LispExit& exit) {
            return exit.status;
        }
        return -1;
    };
    Evaluate(L"(defun leave (x) (exit x)) (defun *error* (text) (princ text))");
    EXPECT_EQ(status(L"(exit)"), 0);
    EXPECT_EQ(status(L"(quit)"), 0);
    EXPECT_EQ(status(L"(leave 7) (princ \"after\")"), 7);
    EXPECT_EQ(m_host.output, L"");
    ExpectValues({{L"x", L"nil"}});
}

TEST_F(LispControl, AnExitStatusIsOneThatEverySystemHas) {
    ExpectErrors({{L"(exit 256)", L"EXIT needs a status from 0 to 255 as argument 1, not 256"},
                  {L"(quit -1)", L"QUIT needs a status from 0 to 255 as argument 1, not -1"},
                  {L"(exit \"1\")", L"EXIT needs a whole number as argument 1, not \"1\""}});
}

}  // namespace
