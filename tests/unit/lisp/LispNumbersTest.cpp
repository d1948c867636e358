// Arithmetic, mathematics, comparisons and predicates of LISP.
#include "tests/unit/lisp/LispFixture.h"

using namespace tests;
using namespace tavrin::lisp;

namespace {

using LispNumbers = CLispTest;

TEST_F(LispNumbers, WholeNumbersStayWholeUntilARealTakesPart) {
    ExpectValues(
        {{L"(+ 1 2 3)", L"6"},     {L"(+ 1 2.0)", L"3.0"}, {L"(+)", L"0"},           {L"(- 10 3 2)", L"5"},
         {L"(- 5)", L"-5"},        {L"(- 2.5)", L"-2.5"},  {L"(* 2 3 4)", L"24"},    {L"(* 2 0.5)", L"1.0"},
         {L"(*)", L"1"},           {L"(/ 7 2)", L"3"},     {L"(/ -7 2)", L"-3"},     {L"(/ 7 2.0)", L"3.5"},
         {L"(/ 100 5 2)", L"10"},  {L"(/ 5)", L"5"},       {L"(1+ 5)", L"6"},        {L"(1- 5)", L"4"},
         {L"(1+ 1.5)", L"2.5"},    {L"(1- 1.5)", L"0.5"},  {L"(rem 7 3)", L"1"},     {L"(rem -7 3)", L"-1"},
         {L"(rem 7.5 2)", L"1.5"}, {L"(abs -5)", L"5"},    {L"(abs -5.5)", L"5.5"},  {L"(min 3 1 2)", L"1"},
         {L"(min 3 1.5)", L"1.5"}, {L"(max 3 1 2)", L"3"}, {L"(max 3 1.5)", L"3.0"}, {L"(gcd 12 -18)", L"6"},
         {L"(gcd 0 0)", L"0"}});
}

TEST_F(LispNumbers, AWholeNumberThatDoesNotFitIsAnErrorAndNotAnotherNumber) {
    constexpr wchar_t kHint[] = L" does not fit in 32 bits: calculate with reals, 1.0 instead of 1";
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"(+ 2147483647 1)", L"+: the whole number 2147483648"},
        {L"(- -2147483648 1)", L"-: the whole number -2147483649"},
        {L"(- -2147483648)", L"-: the whole number 2147483648"},
        {L"(* 65536 65536)", L"*: the whole number 4294967296"},
        {L"(/ -2147483648 -1)", L"/: the whole number 2147483648"},
        {L"(1+ 2147483647)", L"1+: the whole number 2147483648"},
        {L"(1- -2147483648)", L"1-: the whole number -2147483649"},
        {L"(abs -2147483648)", L"ABS: the whole number 2147483648"},
        {L"(gcd -2147483648 0)", L"GCD: the whole number 2147483648"}};
    for (const auto& [text, mistake] : cases) {
        EXPECT_EQ(ErrorOf(text), std::wstring(L"line 1: ") + mistake + kHint);
    }
    ExpectValues({{L"(+ 2147483647 1.0)", L"2147483648.0"}, {L"(rem -2147483648 -1)", L"0"}});
}

TEST_F(LispNumbers, WhatIsNoNumberIsNamed) {
    ExpectErrors({{L"(+ 1 \"2\")", L"+ needs a number as argument 2, not \"2\""},
                  {L"(- nil 1)", L"- needs a number as argument 1, not nil"},
                  {L"(1+ 'a)", L"1+ needs a number as argument 1, not A"},
                  {L"(-)", L"- takes at least 1 argument, not 0"},
                  {L"(rem 1)", L"REM takes at least 2 arguments, not 1"},
                  {L"(1+ 1 2)", L"1+ takes 1 argument, not 2"},
                  {L"(/ 1 0)", L"/: division by zero"},
                  {L"(/ 1.0 2 0.0)", L"/: division by zero"},
                  {L"(rem 1 0)", L"REM: division by zero"},
                  {L"(gcd 1.0 2)", L"GCD needs a whole number as argument 1, not 1.0"},
                  {L"(* 1e200 1e200)", L"*: the result is not a finite number"}});
}

TEST_F(LispNumbers, BitsAreCombined) {
    ExpectValues({{L"(logand 12 10)", L"8"},
                  {L"(logand)", L"-1"},
                  {L"(logior 12 10)", L"14"},
                  {L"(logior)", L"0"},
                  {L"(~ 0)", L"-1"}});
    ExpectErrors({{L"(logand 1.0)", L"LOGAND needs a whole number as argument 1, not 1.0"}});
}

TEST_F(LispNumbers, MathematicsWorksOnReals) {
    ExpectValues({{L"(sqrt 16)", L"4.0"},
                  {L"(sin 0)", L"0.0"},
                  {L"(cos 0)", L"1.0"},
                  {L"(atan 0)", L"0.0"},
                  {L"(atan 1)", L"0.7853981633974483"},
                  {L"(atan 1 -1)", L"2.356194490192345"},
                  {L"(atan -1 0)", L"-1.5707963267948966"},
                  {L"(exp 0)", L"1.0"},
                  {L"(log 1)", L"0.0"},
                  {L"(expt 2 10)", L"1024"},
                  {L"(expt -2 3)", L"-8"},
                  {L"(expt 2 -1)", L"0.5"},
                  {L"(expt 2.0 3)", L"8.0"},
                  {L"(expt 0 0)", L"1"},
                  {L"(fix 2.9)", L"2"},
                  {L"(fix -2.9)", L"-2"},
                  {L"(fix 7)", L"7"},
                  {L"(float 2)", L"2.0"}});
    ExpectErrors({{L"(sqrt -1)", L"SQRT needs a number that is not negative as argument 1, not -1"},
                  {L"(log 0)", L"LOG needs a number above zero as argument 1, not 0"},
                  {L"(exp 1000)", L"EXP: the result is not a finite number"},
                  {L"(expt 0 -1)", L"EXPT: the result is not a finite number"},
                  {L"(expt 2 31)",
                   L"EXPT: the result does not fit in 32 bits: calculate with reals, 2.0 instead of 2"},
                  {L"(expt -1.0 0.5)", L"EXPT: the result is not a finite number"},
                  {L"(fix 3e9)", L"FIX needs a number that fits in 32 bits as argument 1, not 3e+09"},
                  {L"(sin \"a\")", L"SIN needs a number as argument 1, not \"a\""},
                  {L"(atan 1 2 3)", L"ATAN takes 1 to 2 arguments, not 3"}});
}

TEST_F(LispNumbers, ComparisonsTakeAnyCountOfNumbersOrTexts) {
    ExpectValues({{L"(= 1 1.0 1)", L"T"},
                  {L"(= 1 2)", L"nil"},
                  {L"(= \"a\" \"a\")", L"T"},
                  {L"(= 'a 'a)", L"T"},
                  {L"(= nil nil)", L"T"},
                  {L"(= 1 \"1\")", L"nil"},
                  {L"(= '(1) '(1))", L"nil"},
                  {L"(= 5)", L"T"},
                  {L"(/= 1 2)", L"T"},
                  {L"(/= 1 1)", L"nil"},
                  {L"(< 1 2 3)", L"T"},
                  {L"(< 1 3 2)", L"nil"},
                  {L"(> 3 2.5 1)", L"T"},
                  {L"(<= 1 1 2)", L"T"},
                  {L"(>= 2 1 1)", L"T"},
                  {L"(>= 1 2)", L"nil"},
                  {L"(< \"abc\" \"abd\")", L"T"},
                  {L"(> \"a\" \"B\")", L"T"}});
    ExpectErrors({{L"(< 1 \"2\")", L"< needs a number as argument 2, not \"2\""},
                  {L"(< \"1\" 2)", L"< needs a string as argument 2, not 2"},
                  {L"(> nil 1)", L"> needs a number as argument 1, not nil"}});
}

TEST_F(LispNumbers, EqualityHasThreeDegrees) {
    ExpectValues({{L"(eq 'a 'A)", L"T"},
                  {L"(eq 1 1)", L"T"},
                  {L"(eq 1 1.0)", L"nil"},
                  {L"(setq a '(1 2)) (eq a a)", L"T"},
                  {L"(eq a '(1 2))", L"nil"},
                  {L"(equal a '(1 2.0))", L"T"},
                  {L"(equal '(1 (\"x\" . nil)) '(1 (\"x\")))", L"T"},
                  {L"(equal '(1 2) '(1 2 3))", L"nil"},
                  {L"(equal 1.0 1.001)", L"nil"},
                  {L"(equal 1.0 1.001 0.01)", L"T"},
                  {L"(equal '(1.0) '(1.001) 0.01)", L"T"},
                  {L"(equal 1.0 1.5 0.5)", L"T"},
                  {L"(equal 1.0 1.5 0.25)", L"nil"},
                  {L"(equal car car)", L"T"},
                  {L"(eq nil '())", L"T"}});
}

TEST_F(LispNumbers, PredicatesAnswerTOrNil) {
    ExpectValues({{L"(not nil)", L"T"},
                  {L"(not 0)", L"nil"},
                  {L"(null '())", L"T"},
                  {L"(numberp 1)", L"T"},
                  {L"(numberp 1.5)", L"T"},
                  {L"(numberp \"1\")", L"nil"},
                  {L"(zerop 0.0)", L"T"},
                  {L"(zerop 1)", L"nil"},
                  {L"(minusp -1)", L"T"},
                  {L"(minusp 0)", L"nil"},
                  {L"(atom 'a)", L"T"},
                  {L"(atom nil)", L"T"},
                  {L"(atom '(1))", L"nil"},
                  {L"(listp '(1))", L"T"},
                  {L"(listp nil)", L"T"},
                  {L"(listp 5)", L"nil"},
                  {L"(boundp 'car)", L"T"}});
    ExpectErrors({{L"(zerop \"\")", L"ZEROP needs a number as argument 1, not \"\""},
                  {L"(boundp 5)", L"BOUNDP needs a symbol as argument 1, not 5"}});
}

TEST_F(LispNumbers, TypeNamesTheTypeOfAValue) {
    ExpectValues({{L"(mapcar 'type (list 1 1.5 \"\" 'a '(1) car if (lambda ())))",
                   L"(INT REAL STR SYM LIST SUBR SUBR USUBR)"},
                  {L"(type nil)", L"nil"}});
}

}  // namespace
