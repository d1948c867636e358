// LISP of several lines made into one for the prompt.
#include "lisp/OneLine.h"

#include <gtest/gtest.h>

#include "lisp/Printer.h"
#include "lisp/Source.h"

using namespace tavrin::lisp;

namespace {

TEST(OneLine, LineEndsAndIndentsBecomeOneBlank) {
    EXPECT_EQ(OnOneLine(L"(defun f (x)\r\n\t  (* 2 x))\n\n(f 4)\r\n"), L"(defun f (x) (* 2 x)) (f 4)");
    EXPECT_EQ(OnOneLine(L" \n"), L"");
    EXPECT_EQ(OnOneLine(L""), L"");
}

TEST(OneLine, CommentsAreLeftOut) {
    EXPECT_EQ(OnOneLine(L"; first\n(list 1;one\n2) ; last"), L"(list 1 2)");
    EXPECT_EQ(OnOneLine(L"(list ;| one\n ; two |; 1)\n2"), L"(list 1) 2");
    EXPECT_EQ(OnOneLine(L"1 ;| open\n2"), L"1");
    EXPECT_EQ(OnOneLine(L"1 ; a\rb\n2"), L"1 2") << "a comment ends where the reader ends it";
}

TEST(OneLine, TextsStayWhatTheyAre) {
    EXPECT_EQ(OnOneLine(L"(princ \"a;  b\r\nc\")\n1"), L"(princ \"a;  b\\r\\nc\") 1");
    EXPECT_EQ(OnOneLine(L"(list \"\\\\\"\n\"\\\";\"\n1)"), L"(list \"\\\\\" \"\\\";\" 1)");
    EXPECT_EQ(OnOneLine(L"\"open\nfor ever"), L"\"open\\nfor ever");
}

TEST(OneLine, WhatIsReadIsTheSame) {
    const std::wstring source =
        L"; a routine\n(setq a '(1 . 2) ; pair\n  b \"two\nlines; \\\"here\\\"\")\n;| |;(list a\nb)";
    const auto printed = [](const std::wstring& text) {
        std::wstring all;
        for (const CValue& expression : ReadText(text).expressions) {
            all += Print(expression) + L' ';
        }
        return all;
    };
    EXPECT_EQ(printed(OnOneLine(source)), printed(source));
    EXPECT_EQ(OnOneLine(source).find(L'\n'), std::wstring::npos);
}

}  // namespace
