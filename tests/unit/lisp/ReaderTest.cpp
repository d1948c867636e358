// LISP text to values: each kind of expression, compared as printed, and each error with its
// position.
#include "lisp/Reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lisp/Printer.h"
#include "lisp/Source.h"

using namespace tavrin::lisp;

namespace {

// The first expression of `text`, printed.
std::wstring Echo(std::wstring_view text) {
    const auto value = CReader(text).Read();
    return value ? Print(*value) : L"(no expression)";
}

void ExpectError(std::wstring_view text, std::wstring_view message) {
    CReader reader(text);
    try {
        while (reader.Read()) {
        }
        ADD_FAILURE() << testing::PrintToString(text) << " was read";
    } catch (const CLispError& error) {
        EXPECT_EQ(error.Text(), message);
    }
}

TEST(Reader, WholeNumbersHave32Bits) {
    EXPECT_EQ(Echo(L"42"), L"42");
    EXPECT_EQ(Echo(L"-7"), L"-7");
    EXPECT_EQ(Echo(L"+7"), L"7");
    EXPECT_EQ(Echo(L"007"), L"7");
    EXPECT_EQ(Echo(L"2147483647"), L"2147483647");
    EXPECT_EQ(Echo(L"-2147483648"), L"-2147483648");
    ExpectError(L"2147483648", L"line 1, column 1: the whole number 2147483648 does not fit in 32 bits");
    ExpectError(L"(f -2147483649)",
                L"line 1, column 4: the whole number -2147483649 does not fit in 32 bits");
}

TEST(Reader, RealsHaveAPointOrAnExponent) {
    for (const wchar_t* text : {L"1.0", L"1.", L"+1.0", L"1e0", L"1E+00", L"10.0e-1"}) {
        const auto value = CReader(text).Read();
        ASSERT_EQ(value->Type(), VT_REAL) << testing::PrintToString(text);
        EXPECT_EQ(value->AsReal(), 1.0);
    }
    EXPECT_EQ(CReader(L".5").Read()->AsReal(), 0.5);
    EXPECT_EQ(CReader(L"-.5").Read()->AsReal(), -0.5);
    EXPECT_EQ(CReader(L"0.1").Read()->AsReal(), 0.1);
    ExpectError(L"1e999", L"line 1, column 1: the real 1e999 is too large or too small");
    ExpectError(L"1e-999", L"line 1, column 1: the real 1e-999 is too large or too small");
}

TEST(Reader, WhatIsAlmostANumberIsASymbol) {
    for (const wchar_t* text : {L"+", L"-", L"1+", L"1-", L"1E", L"E5", L"1.2.3", L"-.", L"1D5", L"0X10"}) {
        const auto value = CReader(text).Read();
        EXPECT_EQ(value->Type(), VT_SYMBOL) << testing::PrintToString(text);
        EXPECT_EQ(Print(*value), text);
    }
}

TEST(Reader, SymbolsDoNotDistinguishCase) {
    EXPECT_TRUE(CReader(L"tavrinWnd").Read()->IsSymbol(L"TAVRINWND"));
    EXPECT_TRUE(CReader(L"t").Read()->IsSymbol(L"T"));
    EXPECT_EQ(Echo(L"perché"), L"PERCHé");
}

TEST(Reader, NilIsTheEmptyList) {
    for (const wchar_t* text : {L"nil", L"NIL", L"Nil", L"()", L"( )"}) {
        EXPECT_TRUE(CReader(text).Read()->IsNil()) << testing::PrintToString(text);
    }
}

TEST(Reader, TextsKnowFourEscapes) {
    EXPECT_EQ(CReader(LR"("a\"b\\c\nd\te")").Read()->AsString(), L"a\"b\\c\nd\te");
    EXPECT_EQ(CReader(L"\"\"").Read()->AsString(), L"");
    EXPECT_EQ(CReader(L"\"(;'\n)\"").Read()->AsString(), L"(;'\n)");
    EXPECT_EQ(CReader(L"\"porta però 門\"").Read()->AsString(), L"porta però 門");
    ExpectError(LR"("ab\q")",
                LR"(line 1, column 4: the escape \q is unknown: a backslash in a string is written \\)");
}

TEST(Reader, ListsNest) {
    EXPECT_EQ(Echo(L"(a (1 2.5) \"x\" () ((b)))"), L"(A (1 2.5) \"x\" nil ((B)))");
    EXPECT_EQ(Echo(L"(a\"b\"c'd(e))"), L"(A \"b\" C (QUOTE D) (E))");
}

TEST(Reader, ADotMakesAPair) {
    EXPECT_EQ(Echo(L"(a . b)"), L"(A . B)");
    EXPECT_EQ(Echo(L"(a b . (c))"), L"(A B C)");
    EXPECT_EQ(Echo(L"(a . nil)"), L"(A)");
    EXPECT_EQ(Echo(L"(a .5)"), L"(A 0.5)");
    ExpectError(L"(. b)", L"line 1, column 2: the dot has no element before it");
    ExpectError(L"(a . )", L"line 1, column 4: nothing follows the dot");
    ExpectError(L"(a .", L"line 1, column 4: nothing follows the dot");
    ExpectError(L"(a . b c)", L"line 1, column 4: more than one expression follows the dot");
    ExpectError(L"(a . b", L"line 1, column 4: a parenthesis is not closed");
    ExpectError(L" . ", L"line 1, column 2: a misplaced dot");
}

TEST(Reader, AnApostropheQuotesWhatFollows) {
    EXPECT_EQ(Echo(L"'a"), L"(QUOTE A)");
    EXPECT_EQ(Echo(L"''(1)"), L"(QUOTE (QUOTE (1)))");
    EXPECT_EQ(Echo(L"' a"), L"(QUOTE A)");
    ExpectError(L"'", L"line 1, column 1: nothing follows the quote");
    ExpectError(L"(f ')", L"line 1, column 4: nothing follows the quote");
}

TEST(Reader, ExpressionsFollowEachOtherUntilTheTextEnds) {
    CReader reader(L" 1 (2) ; the rest of the line\n\"3\";");
    EXPECT_EQ(Print(*reader.Read()), L"1");
    EXPECT_EQ(Print(*reader.Read()), L"(2)");
    EXPECT_EQ(Print(*reader.Read()), L"\"3\"");
    EXPECT_FALSE(reader.Read());
    EXPECT_FALSE(reader.Read());
    EXPECT_FALSE(CReader(L"").Read());
    EXPECT_FALSE(CReader(L" ; nothing").Read());
}

TEST(Reader, ACommentInBarsMayStandAnywhereAndSpanLines) {
    EXPECT_EQ(Echo(L"(a ;| not read ; nor ) this\n |; b)"), L"(A B)");
    EXPECT_EQ(Echo(L";||; c"), L"C");
    ExpectError(L"(a\n ;| b |", L"line 2, column 2: a comment is not closed");
}

TEST(Reader, AErrorNamesTheLineAndTheColumnWhereItBegins) {
    ExpectError(L"(a\n  (b c)\n", L"line 1, column 1: a parenthesis is not closed");
    ExpectError(L"(a\r\n  (b c)\r\n  (d", L"line 3, column 3: a parenthesis is not closed");
    ExpectError(L"1\n 2)", L"line 2, column 3: a closing parenthesis has no opening one");
    ExpectError(L"(f \"ab)", L"line 1, column 4: a string is not closed");
    ExpectError(L"\n\"ab\\", L"line 2, column 1: a string is not closed");
}

TEST(Reader, NestingHasALimitInsteadOfTheStacks) {
    const std::wstring open(1000, L'(');
    const std::wstring close(1000, L')');
    EXPECT_EQ(Echo(open + close), std::wstring(999, L'(') + L"nil" + std::wstring(999, L')'));
    ExpectError(std::wstring(100'000, L'('),
                L"line 1, column 1002: expressions are nested more than 1000 levels deep");
    ExpectError(std::wstring(100'000, L'\'') + L"a",
                L"line 1, column 1002: expressions are nested more than 1000 levels deep");
}

TEST(Reader, AListOfAMillionElementsIsReadPrintedAndLetGo) {
    std::wstring text = L"(";
    for (int i = 0; i < 1'000'000; ++i) {
        text += L"7 ";
    }
    text.back() = L')';
    EXPECT_EQ(Echo(text), text);
}

TEST(Value, ANestOfAMillionPairsIsLetGoWithoutRecursion) {
    CValue nest;
    for (int i = 0; i < 1'000'000; ++i) {
        nest = CValue::Pair(nest, CValue::Integer(i));
    }
    EXPECT_EQ(nest.Cdr().AsInteger(), 999'999);
}

TEST(Value, WhatIsStillHeldSurvivesTheListAroundIt) {
    CValue tail = CReader(L"(2 3)").Read().value();
    CValue whole = CValue::Pair(CValue::Integer(1), tail);
    whole = CValue();
    EXPECT_EQ(Print(tail), L"(2 3)");
}

TEST(Reader, NamesOfFunctionsAreSymbolsThatAreNoConstants) {
    for (const wchar_t* name : {L"tavrinwnd", L"C:DOOR", L"1+", L"a.b"}) {
        EXPECT_TRUE(IsSymbolName(name)) << testing::PrintToString(name);
    }
    for (const wchar_t* name :
         {L"", L"nil", L"T", L"5", L"1.5", L".", L"a b", L"a(", L"'a", L"a;b", L"\"a\""}) {
        EXPECT_FALSE(IsSymbolName(name)) << testing::PrintToString(name);
    }
}

TEST(Reader, KnowsWhereTheTextsStood) {
    CReader reader(L"(a \"b\" ; \"no text\"\n . \"\\\"c\")'\"\"");
    while (reader.Read()) {
    }
    std::vector<std::size_t> ranges;
    for (const CReader::TextRange& range : reader.TextRanges()) {
        ranges.insert(ranges.end(), {range.start, range.length});
    }
    EXPECT_EQ(ranges, (std::vector<std::size_t>{3, 3, 22, 5, 29, 2}));
}

TEST(Reader, TextThatEndsWithinAnExpressionIsUnfinished) {
    for (const wchar_t* text :
         {L"(", L"(a (b)", L"(a\n\"b", L"'", L"(a .", L"(a . b", L"1 (a ;| b", L";| c", L"\"a\\"}) {
        EXPECT_TRUE(IsUnfinished(text)) << testing::PrintToString(text);
    }
    for (const wchar_t* text :
         {L"", L"1", L"(a)", L"(a . b)", L")", L"(a . )", L"99999999999", L"(\"\\x\"", L"; ("}) {
        EXPECT_FALSE(IsUnfinished(text)) << testing::PrintToString(text);
    }
}

}  // namespace
