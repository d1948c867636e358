// Evaluation errors: their location, the *error* function, Escape, and the limits on recursion and memory.
#include "tests/unit/lisp/LispFixture.h"

using namespace tests;
using namespace tavrin::lisp;

namespace {

using LispErrors = CLispTest;

constexpr wchar_t kTooDeep[] = L"calls are nested too deep: does the recursion come to an end?";

TEST_F(LispErrors, TheInnermostFunctionAndItsLineAreNamed) {
    EXPECT_EQ(ErrorOf(L"(defun f (x)\n  (g x))\n(defun g (x)\n  (if T\n    (car x)))\n(f 5)"),
              L"line 2 in F > line 5 in G: CAR needs a list as argument 1, not 5");
    EXPECT_EQ(ErrorOf(L"(list\n (f\n  '(1))\n (car 2))"), L"line 4: CAR needs a list as argument 1, not 2");
    EXPECT_EQ(ErrorOf(L"(+ 1\n (car '(\"a\")))"), L"line 1: + needs a number as argument 2, not \"a\"")
        << "the line of the call that failed, not of the one evaluated last";
    EXPECT_EQ(ErrorOf(L"(mapcar\n '(lambda (x)\n   (car x))\n '(1))"),
              L"line 3 in LAMBDA: CAR needs a list as argument 1, not 1");
}

TEST_F(LispErrors, ACallBuiltAtRunTimeHasTheEnclosingLine) {
    EXPECT_EQ(ErrorOf(L"\n(eval (list 'car 5))"), L"line 2: CAR needs a list as argument 1, not 5");
    EXPECT_EQ(ErrorOf(L"(defun f ()\n 1)\n(defun g ()\n (f)\n (apply 'car '(5)))\n(g)"),
              L"line 5 in G: CAR needs a list as argument 1, not 5");
}

TEST_F(LispErrors, LongValuesAreCutInMessages) {
    EXPECT_EQ(ErrorOf(L"(setq l nil) (repeat 1000 (setq l (cons 1234567 l))) (+ l)"),
              L"line 1: + needs a number as argument 1, not (1234567 1234567 1234567 1234567 1234567 1234567 "
              L"1234567 123...");
}

TEST_F(LispErrors, TheSilentResultOfPrincIsNamed) {
    EXPECT_EQ(ErrorOf(L"(+ 1 (princ))"), L"line 1: + needs a number as argument 2, not what (princ) gives");
}

TEST_F(LispErrors, TheUsersOwnErrorFunctionIsCalledOnce) {
    Evaluate(
        L"(defun *error* (text) (princ (strcat \"[\" text \"]\")))(defun f (x) (g x)) (defun g (x) (car x))");
    try {
        Evaluate(L"(f 5)");
        FAIL();
    } catch (const CLispError& error) {
        EXPECT_TRUE(error.IsHandled());
    }
    EXPECT_EQ(m_host.output, L"[line 1 in F > line 1 in G: CAR needs a list as argument 1, not 5]");
}

TEST_F(LispErrors, WithoutAnErrorFunctionTheHostReportsTheError) {
    try {
        Evaluate(L"(car 5)");
        FAIL();
    } catch (const CLispError& error) {
        EXPECT_FALSE(error.IsHandled());
    }
}

TEST_F(LispErrors, AnErrorFunctionMayBeALocalAndSeesTheLocals) {
    Evaluate(
        L"(setq saved 1)"
        L"(defun work (/ *error* saved)"
        L"  (setq saved 7)"
        L"  (defun *error* (text) (princ saved))"
        L"  (deeper))"
        L"(defun deeper () (car 5))");
    ErrorOf(L"(work)");
    EXPECT_EQ(m_host.output, L"7");
    ExpectValues({{L"saved", L"1"}, {L"*error*", L"nil"}});
}

TEST_F(LispErrors, AnErrorInTheErrorFunctionIsReportedInstead) {
    Evaluate(L"(defun *error* (text) (cdr 6))");
    try {
        Evaluate(L"(car 5)");
        FAIL();
    } catch (const CLispError& error) {
        EXPECT_EQ(error.Text(), L"line 1 in *ERROR*: CDR needs a list as argument 1, not 6");
        EXPECT_FALSE(error.IsHandled());
    }
    Evaluate(L"(defun *error* () 1)");
    EXPECT_EQ(ErrorOf(L"(car 5)"), L"line 1: *ERROR* takes 0 arguments, not 1");
    Evaluate(L"(setq *error* 5)");
    EXPECT_EQ(ErrorOf(L"(car 5)"), L"line 1: 5 is not the name of a function");
    Evaluate(L"(setq *error* nil)");
    EXPECT_EQ(ErrorOf(L"(car 5)"), L"line 1: CAR needs a list as argument 1, not 5");
}

TEST_F(LispErrors, AnErrorFunctionMayExit) {
    Evaluate(L"(defun *error* (text) (exit 3))");
    EXPECT_THROW(Evaluate(L"(car 5)"), LispExit);
}

TEST_F(LispErrors, EvaluationContinuesAfterAnError) {
    ErrorOf(L"(defun f (x) (f x)) (f 1)");
    ExpectValues({{L"(+ 1 2)", L"3"}, {L"x", L"nil"}});
}

TEST_F(LispErrors, EscapeEndsALoop) {
    for (const wchar_t* loop :
         {L"(while T)", L"(repeat 2000000000)", L"(defun f () T) (while (f) (setq a 1))"}) {
        m_host.polls = 0;
        m_host.escapeAt = 3;
        EXPECT_EQ(ErrorOf(loop), L"cancelled");
        EXPECT_EQ(m_host.polls, 3);
    }
}

TEST_F(LispErrors, TheErrorFunctionIsCalledForEscape) {
    Evaluate(L"(defun *error* (text) (princ text))");
    m_host.escapeAt = 1;
    EXPECT_EQ(ErrorOf(L"(while T)"), L"cancelled");
    EXPECT_EQ(m_host.output, L"cancelled");
}

TEST_F(LispErrors, EscapeIsPolledWhileListsAreBuilt) {
    m_host.escapeAt = 3;
    EXPECT_EQ(ErrorOf(L"(setq l '(1)) (while T (setq l (append l l)))"), L"cancelled");
    ExpectValues({{L"(+ 1 2)", L"3"}});
}

TEST_F(LispErrors, RecursionWithoutEndIsAnErrorThatNamesSomeOfTheCalls) {
    const auto expectTooDeep = [this](const wchar_t* recursion, const std::wstring& name) {
        const std::wstring text = ErrorOf(recursion);
        const std::wstring call = L"line 1 in " + name;
        const std::wstring first = call + L" > " + call + L" > " + call + L" > (";
        EXPECT_TRUE(text.starts_with(first)) << testing::PrintToString(text);
        const std::size_t end = text.find(L" more calls) > ", first.size());
        ASSERT_NE(end, text.npos) << testing::PrintToString(text);
        EXPECT_GT(std::stoi(text.substr(first.size())), 100);
        EXPECT_EQ(text.substr(end), L" more calls) > " + call + L" > " + call + L" > " + call + L" > " +
                                        call + L" > " + call + L": " + kTooDeep);
    };
    expectTooDeep(L"(defun f (x) (1+ (f x))) (f 1)", L"F");
    expectTooDeep(L"(defun g (x) (apply 'g (list x))) (g 1)", L"G");
    expectTooDeep(L"(defun h (x) (mapcar 'h (list x))) (h 1)", L"H");
    EXPECT_EQ(ErrorOf(L"(setq e '(eval e)) (eval e)"), std::wstring(L"line 1: ") + kTooDeep);
}

TEST_F(LispErrors, ModerateRecursionIsNoError) {
    ExpectValues({{L"(defun count (n) (if (= n 0) 0 (1+ (count (1- n))))) (count 400)", L"400"}});
}

TEST_F(LispErrors, TheErrorFunctionRunsAfterTooDeepRecursion) {
    Evaluate(L"(defun *error* (text) (princ (strcat \"[\" (substr text 1 12) \"]\")))");
    ErrorOf(L"(defun f (x) (1+ (f x))) (f 1)");
    EXPECT_EQ(m_host.output, L"[line 1 in F ]");
}

TEST_F(LispErrors, ARecursiveErrorFunctionEndsToo) {
    EXPECT_TRUE(ErrorOf(L"(defun *error* (text) (*error* text)) (car 5)")
                    .ends_with(std::wstring(L" > line 1 in *ERROR*: ") + kTooDeep));
}

TEST_F(LispErrors, DeeplyNestedDataIsHandledOrRefused) {
    constexpr wchar_t kMake[] = L"(setq a nil b nil) (repeat 300000 (setq a (list a) b (list b)))";
    Evaluate(kMake);
    ExpectValues({{L"(equal a b)", L"T"}, {L"(equal a (list b))", L"nil"}, {L"(type a)", L"LIST"}});
    EXPECT_EQ(Evaluate(L"a").size(), 2u * 300'000 + 3);
    EXPECT_EQ(ErrorOf(L"(subst 1 2 a)"), std::wstring(L"line 1: ") + kTooDeep);
    EXPECT_EQ(ErrorOf(L"(eval a)").substr(0, 16), L"line 1: ((((((((");
    ExpectValues({{L"(setq a nil b nil)", L"nil"}});
}

TEST_F(LispErrors, DeeplyNestedFunctionsAreDestroyed) {
    ExpectValues({{L"(setq f 1) (repeat 100000 (setq f (eval (list 'lambda nil f)))) (setq f nil)", L"nil"}});
}

TEST_F(LispErrors, ListsWithSharedPartsArePrintedUpToALimit) {
    Evaluate(L"(setq a '(1)) (repeat 60 (setq a (list a a))) nil");
    EXPECT_TRUE(ErrorOf(L"(princ a)").starts_with(L"line 1: a value is too long to be printed: (((("));
    m_host.escapeAt = 25;
    EXPECT_EQ(ErrorOf(L"(setq b '(1)) (repeat 60 (setq b (list b b))) (equal a b)"), L"cancelled");
}

constexpr std::size_t kMegabyte = std::size_t{1024} * 1024;

TEST_F(LispErrors, TheMemoryOfValuesIsLimited) {
    m_evaluator.SetMemoryLimit(16 * kMegabyte);
    constexpr wchar_t kTooMuch[] =
        L"line 1: the values take more than 16 MB of memory: does a loop collect them without end?";
    for (const wchar_t* loop :
         {L"(while T (setq all (cons 1 all)))", L"(setq all '(1)) (while T (setq all (append all all)))",
          L"(setq s \"0123456789\") (repeat 12 (setq s (strcat s s)))"
          L"(while T (setq all (cons (substr s 2) all)))"}) {
        EXPECT_EQ(ErrorOf(loop), kTooMuch);
        EXPECT_LT(CValue::HeldBytes(), 64 * kMegabyte);
        ExpectValues({{L"(setq all nil s nil)", L"nil"}});
    }
    EXPECT_LT(CValue::HeldBytes(), kMegabyte) << "released memory is not counted";
}

TEST_F(LispErrors, TheErrorFunctionHasMemoryAfterTheLimitIsReached) {
    m_evaluator.SetMemoryLimit(kMegabyte);
    Evaluate(L"(defun *error* (text) (setq all nil) (princ (substr text 1 26)))");
    ErrorOf(L"(while T (setq all (cons 1 all)))");
    EXPECT_EQ(m_host.output, L"line 1: the values take mo");
}

TEST_F(LispErrors, TheLengthOfATextIsLimited) {
    EXPECT_EQ(ErrorOf(L"(setq s \"x\") (while T (setq s (strcat s s)))"),
              L"line 1: STRCAT: the string would be longer than 4000000 characters");
}

}  // namespace
