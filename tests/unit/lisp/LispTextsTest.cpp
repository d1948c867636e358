// LISP's texts: joined, cut, converted, printed.
#include "tests/unit/lisp/LispFixture.h"

using namespace tests;
using namespace tavrin::lisp;

namespace {

using LispTexts = CLispTest;

TEST_F(LispTexts, AreJoinedMeasuredAndCut) {
    ExpectValues({{L"(strcat \"a\" \"\" \"bc\")", L"\"abc\""},
                  {L"(strcat)", L"\"\""},
                  {L"(strlen \"abc\" \"de\")", L"5"},
                  {L"(strlen \"\")", L"0"},
                  {L"(substr \"abcde\" 2 3)", L"\"bcd\""},
                  {L"(substr \"abcde\" 2)", L"\"bcde\""},
                  {L"(substr \"abc\" 3 10)", L"\"c\""},
                  {L"(substr \"abc\" 4)", L"\"\""},
                  {L"(substr \"abc\" 1 0)", L"\"\""},
                  {L"(ascii \"A\")", L"65"},
                  {L"(ascii \"èx\")", L"232"},
                  {L"(chr 65)", L"\"A\""},
                  {L"(ascii (chr 8364))", L"8364"}});
    ExpectErrors(
        {{L"(strcat \"a\" 5)", L"STRCAT needs a string as argument 2, not 5"},
         {L"(strlen nil)", L"STRLEN needs a string as argument 1, not nil"},
         {L"(substr \"abc\" 0)", L"SUBSTR needs a position of 1 or more as argument 2, not 0"},
         {L"(substr \"abc\" 1 -1)", L"SUBSTR needs a length of 0 or more as argument 3, not -1"},
         {L"(substr \"abc\")", L"SUBSTR takes 2 to 3 arguments, not 1"},
         {L"(ascii \"\")", L"ASCII needs a string of at least one character as argument 1, not \"\""},
         {L"(chr 0)", L"CHR needs a code from 1 to 65535 as argument 1, not 0"},
         {L"(chr 65536)", L"CHR needs a code from 1 to 65535 as argument 1, not 65536"}});
}

TEST_F(LispTexts, CaseIsThatOfLatinLettersWhateverTheLocale) {
    ExpectValues({{L"(strcase \"Però aß÷ž1\")", L"\"PERÒ Aß÷ž1\""},
                  {L"(strcase \"PERÒ Þ×\" T)", L"\"però þ×\""},
                  {L"(strcase \"a\" nil)", L"\"A\""}});
}

TEST_F(LispTexts, NumbersAreReadFromWhatTheTextBeginsWith) {
    ExpectValues({{L"(atoi \"12\")", L"12"},
                  {L"(atoi \" -12abc\")", L"-12"},
                  {L"(atoi \"abc\")", L"0"},
                  {L"(atoi \"\")", L"0"},
                  {L"(atoi \"+7\")", L"7"},
                  {L"(atoi \"3.9\")", L"3"},
                  {L"(atof \"2.5\")", L"2.5"},
                  {L"(atof \" 1e3x\")", L"1000.0"},
                  {L"(atof \"x\")", L"0.0"},
                  {L"(atof \"+.5 m\")", L"0.5"},
                  {L"(atof \"inf\")", L"0.0"},
                  {L"(atof \"nan\")", L"0.0"},
                  {L"(itoa -5)", L"\"-5\""}});
    ExpectErrors(
        {{L"(atoi \"9999999999\")", L"ATOI: the number in \"9999999999\" does not fit in 32 bits"},
         {L"(atof \"1e999\")", L"ATOF: the number in \"1e999\" is too large or too small for a real"},
         {L"(itoa 1.5)", L"ITOA needs a whole number as argument 1, not 1.5"}});
}

TEST_F(LispTexts, LengthsAreInTheUnitsOfTheDrawingUnlessOthersAreGiven) {
    m_host.variables[L"LUNITS"] = CValue::Integer(4);
    m_host.variables[L"LUPREC"] = CValue::Integer(2);
    ExpectValues({{L"(rtos 15.5)", L"\"1'-3 1/2\\\"\""},
                  {L"(rtos 15.5 2)", L"\"15.50\""},
                  {L"(rtos 15.5 2 1)", L"\"15.5\""},
                  {L"(rtos 15 5 0)", L"\"15\""},
                  {L"(distof \"1'-3 1/2\\\"\")", L"15.5"},
                  {L"(distof \"1e2\" 2)", L"100.0"},
                  {L"(distof \"x\")", L"nil"}});
    ExpectErrors({{L"(rtos 1 6)", L"RTOS needs units from 1 to 5 as argument 2, not 6"},
                  {L"(rtos 1 2 -1)", L"RTOS needs a whole number from 0 on as argument 3, not -1"},
                  {L"(rtos \"1\")", L"RTOS needs a number as argument 1, not \"1\""}});
}

TEST_F(LispTexts, AnglesAreShownInFourUnits) {
    ExpectValues({{L"(angtos (/ (* 4 (atan 1)) 2))", L"\"90\""},
                  {L"(angtos (* 4 (atan 1)) 0 2)", L"\"180.00\""},
                  {L"(angtos (* -1 (atan 1)) 0 1)", L"\"315.0\""},
                  {L"(angtos (atan 1) 1 0)", L"\"45d0'0\\\"\""},
                  {L"(angtos 1.0 1 1)", L"\"57d17'44.8\\\"\""},
                  {L"(angtos (* 7.99999999 (atan 1)) 1 0)", L"\"0d0'0\\\"\""},
                  {L"(angtos (atan 1) 2 1)", L"\"50.0g\""},
                  {L"(angtos 1 3 2)", L"\"1.00r\""}});
    ExpectErrors({{L"(angtos 1 4)", L"ANGTOS needs units from 0 to 3 as argument 2, not 4"}});
}

TEST_F(LispTexts, ReadGivesTheFirstExpression) {
    ExpectValues({{L"(read \"(a . 5) b\")", L"(A . 5)"}, {L"(read \"\")", L"nil"}, {L"(read \"x\")", L"X"}});
    ExpectErrors({{L"(read \"(a\")", L"READ: a parenthesis is not closed in \"(a\""}});
}

TEST_F(LispTexts, WhatIsPrintedGoesOutAsItIs) {
    ExpectValues({{L"(princ \"a\\\"b\")", L"\"a\\\"b\""}});
    EXPECT_EQ(std::exchange(m_host.output, L""), L"a\"b");
    Evaluate(L"(princ '(\"a\" 1.5 b)) (prin1 '(\"a\" 1.5 b))");
    EXPECT_EQ(std::exchange(m_host.output, L""), L"(a 1.5 B)(\"a\" 1.5 B)");
    Evaluate(L"(print \"x\") (terpri) (prompt \"\\nmore\") (write-line \"line\") (write-char 65)");
    EXPECT_EQ(std::exchange(m_host.output, L""), L"\n\"x\" \n\nmoreline\nA");
    ExpectValues({{L"(terpri)", L"nil"}, {L"(prompt \"\")", L"nil"}, {L"(write-line \"a\")", L"\"a\""}});
    ExpectErrors({{L"(prompt 5)", L"PROMPT needs a string as argument 1, not 5"},
                  {L"(princ 1 2)", L"PRINC needs an open file as argument 2, not 2"}});
}

TEST_F(LispTexts, APrincWithoutArgumentsGivesSilence) {
    for (const wchar_t* text : {L"(princ)", L"(prin1)", L"(print)"}) {
        const LispResult result = m_evaluator.Run(ReadText(text));
        EXPECT_TRUE(result->IsSymbol(L""));
    }
    EXPECT_EQ(m_host.output, L"");
}

TEST_F(LispTexts, WhatIsPrintedReadableReadsBackEqual) {
    ExpectValues(
        {{L"(setq a (list 1 -2.5 \"q\\\"\\\\\\n\\t\\r\" 'sym (cons 1 2) nil T (list (list))))"
          L"(equal a '(1 -2.5 \"q\\\"\\\\\\n\\t\\r\" sym (1 . 2) nil T (nil)))",
          L"T"}});
    const std::wstring printed = Evaluate(L"a");
    ExpectValues({{(L"(equal a '" + printed + L")").c_str(), L"T"}});
}

}  // namespace
