// Values to LISP notation.
#include "lisp/Printer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "lisp/Reader.h"

using namespace tavrin::lisp;

namespace {

TEST(Printer, RealsAlwaysLookLikeReals) {
    EXPECT_EQ(Print(CValue::Real(1)), L"1.0");
    EXPECT_EQ(Print(CValue::Real(-2.5)), L"-2.5");
    EXPECT_EQ(Print(CValue::Real(1e100)), L"1e+100");
    EXPECT_EQ(Print(CValue::Real(-0.0)), L"-0.0");
}

TEST(Printer, RealsReadBackAsTheSameNumber) {
    for (const double number : {0.1, 1.0 / 3, 1e21, 5e-324, 1.7976931348623157e308, 123456789.123456789}) {
        const std::wstring text = Print(CValue::Real(number));
        EXPECT_EQ(CReader(text).Read()->AsReal(), number) << testing::PrintToString(text);
    }
}

TEST(Printer, InfinitiesAndNaNHaveNames) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Print(CValue::Real(infinity)), L"inf");
    EXPECT_EQ(Print(CValue::Real(-infinity)), L"-inf");
    EXPECT_EQ(Print(CValue::Real(std::nan(""))), L"nan");
    EXPECT_EQ(Print(CValue::Real(-std::nan(""))), L"nan");
}

TEST(Printer, TextsAreQuotedWithTheirEscapes) {
    EXPECT_EQ(Print(CValue::String(L"a\"b\\c\nd\te")), LR"("a\"b\\c\nd\te")");
    EXPECT_EQ(Print(CValue::String(L"")), L"\"\"");
}

TEST(Printer, ListsPairsAndConstants) {
    const CValue elements[] = {CValue::Integer(100), CValue::String(L"name")};
    EXPECT_EQ(Print(CValue::List(elements)), L"(100 \"name\")");
    EXPECT_EQ(Print(CValue::List(elements, CValue::True())), L"(100 \"name\" . T)");
    EXPECT_EQ(Print(CValue::List({})), L"nil");
    EXPECT_EQ(Print(CValue()), L"nil");
    EXPECT_EQ(Print(CValue::True()), L"T");
}

}  // namespace
