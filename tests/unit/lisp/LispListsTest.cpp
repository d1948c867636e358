// LISP's lists: made, taken apart, searched.
#include "tests/unit/lisp/LispFixture.h"

using namespace tests;
using namespace tavrin::lisp;

namespace {

using LispLists = CLispTest;

TEST_F(LispLists, CarAndCdrTakeUpToFourSteps) {
    ExpectValues({{L"(car '(1 2 3))", L"1"},
                  {L"(cdr '(1 2 3))", L"(2 3)"},
                  {L"(cdr '(1 . 2))", L"2"},
                  {L"(cadr '(1 2 3))", L"2"},
                  {L"(caddr '(1 2 3))", L"3"},
                  {L"(cddr '(1 2 3))", L"(3)"},
                  {L"(cadddr '(1 2 3 4))", L"4"},
                  {L"(caar '((1 2) 3))", L"1"},
                  {L"(cdar '((1 2) 3))", L"(2)"},
                  {L"(cdaadr '(0 ((1 2) 3)))", L"(2)"},
                  {L"(car nil)", L"nil"},
                  {L"(cadr nil)", L"nil"},
                  {L"(caddr '(1))", L"nil"}});
    ExpectErrors({{L"(car 5)", L"CAR needs a list as argument 1, not 5"},
                  {L"(cadr '(1 . 2))", L"CADR needs a list nested deeply enough as argument 1, not (1 . 2)"},
                  {L"(car)", L"CAR takes 1 argument, not 0"}});
}

TEST_F(LispLists, EveryNameOfOneToFourStepsIsKnown) {
    int names = 0;
    for (int length = 1; length <= 4; ++length) {
        for (int bits = 0; bits < 1 << length; ++bits, ++names) {
            std::wstring name = L"c";
            for (int i = 0; i < length; ++i) {
                name += (bits >> i & 1) != 0 ? L'd' : L'a';
            }
            EXPECT_EQ(Evaluate(L"(" + name + L"r nil)"), L"nil");
        }
    }
    EXPECT_EQ(names, 30);
}

TEST_F(LispLists, ListsAreMade) {
    ExpectValues({{L"(cons 1 2)", L"(1 . 2)"},
                  {L"(cons 1 '(2))", L"(1 2)"},
                  {L"(list)", L"nil"},
                  {L"(list 1 'a \"b\")", L"(1 A \"b\")"},
                  {L"(append '(1) nil '(2 3) '((4)))", L"(1 2 3 (4))"},
                  {L"(append)", L"nil"},
                  {L"(reverse '(1 2 3))", L"(3 2 1)"},
                  {L"(reverse nil)", L"nil"}});
    ExpectErrors({{L"(append '(1) 2)", L"APPEND needs a list as argument 2, not 2"},
                  {L"(append 1 '(2))", L"APPEND needs a list as argument 1, not 1"},
                  {L"(reverse '(1 . 2))", L"REVERSE needs a list as argument 1, not (1 . 2)"},
                  {L"(cons 1)", L"CONS takes 2 arguments, not 1"}});
}

TEST_F(LispLists, ElementsAreCountedAndFound) {
    ExpectValues({{L"(length '(1 2 3))", L"3"},
                  {L"(length nil)", L"0"},
                  {L"(nth 0 '(a b))", L"A"},
                  {L"(nth 2 '(a b))", L"nil"},
                  {L"(last '(1 2 3))", L"3"},
                  {L"(last nil)", L"nil"},
                  {L"(member 2 '(1 2 3))", L"(2 3)"},
                  {L"(member \"b\" '(\"a\" \"b\"))", L"(\"b\")"},
                  {L"(member 5 '(1 2))", L"nil"},
                  {L"(assoc 2 '((1 . a) (2 . b)))", L"(2 . B)"},
                  {L"(assoc \"x\" '((\"x\" 1)))", L"(\"x\" 1)"},
                  {L"(assoc 3 '((1 . a) nil))", L"nil"}});
    ExpectErrors({{L"(length \"abc\")", L"LENGTH needs a list as argument 1, not \"abc\""},
                  {L"(nth -1 '(1))", L"NTH needs a whole number from 0 on as argument 1, not -1"},
                  {L"(nth 3 '(1 . 2))", L"NTH needs a list as argument 2, not (1 . 2)"},
                  {L"(member 1 5)", L"MEMBER needs a list as argument 2, not 5"},
                  {L"(assoc 1 '(5))", L"ASSOC: 5 in the list is not a pair"}});
}

TEST_F(LispLists, SubstReplacesEverywhere) {
    ExpectValues({{L"(subst 'x 'a '(a (b a) . a))", L"(X (B X) . X)"},
                  {L"(subst '(1 2) '(b) '(a b))", L"(A 1 2)"},
                  {L"(subst 1 2 2)", L"1"},
                  {L"(subst 1 2 nil)", L"nil"},
                  {L"(subst 1 nil nil)", L"1"},
                  {L"(subst 0 nil '(1 nil (nil . nil)))", L"(1 0 (0))"}});
}

TEST_F(LispLists, PointsAreCalculated) {
    ExpectValues({{L"(polar '(1 2) 0 5)", L"(6.0 2.0)"},
                  {L"(polar '(1 2 3) 0 5)", L"(6.0 2.0 3.0)"},
                  {L"(distance '(0 0) '(3 4))", L"5.0"},
                  {L"(distance '(0 0 0) '(2 3 6))", L"7.0"},
                  {L"(angle '(0 0) '(0 5))", L"1.5707963267948966"},
                  {L"(angle '(0 0) '(0 -5))", L"4.71238898038469"},
                  {L"(angle '(0 0) '(5 0))", L"0.0"}});
    ExpectErrors(
        {{L"(polar 5 0 1)", L"POLAR needs a point, a list of two or three numbers, as argument 1, not 5"},
         {L"(distance '(0 0) '(1))",
          L"DISTANCE needs a point, a list of two or three numbers, as argument 2, not (1)"},
         {L"(angle '(0 a) '(1 1))",
          L"ANGLE needs a point, a list of two or three numbers, as argument 1, not (0 A)"},
         {L"(angle '(0 0 0 0) '(1 1))",
          L"ANGLE needs a point, a list of two or three numbers, as argument 1, not (0 0 0 0)"}});
}

}  // namespace
