// What the checker finds in routines.
#include "tools/rules/RoutineCalls.h"

#include <gtest/gtest.h>

using namespace tavrin::tools;

namespace {

// The names of the routine's only call, each with its literal text.
std::vector<std::wstring> NamesIn(const std::wstring& routine) {
    const RoutineContents contents = ReadRoutine(routine);
    EXPECT_EQ(contents.calls.size(), 1u);
    std::vector<std::wstring> names;
    for (const RoutineName& name : contents.calls.front().names) {
        names.push_back(name.text + L' ' + routine.substr(name.start, name.length));
    }
    return names;
}

using Names = std::vector<std::wstring>;

TEST(RoutineCalls, ItemChooseTakesALiteralList) {
    const Names expected = {L"door_single \"single\"", L"door_double \"double\""};
    EXPECT_EQ(NamesIn(L"(foo \"x\") (item-choose \"door\" '(\"single\" \"double\"))"), expected);
    EXPECT_EQ(NamesIn(L"(defun f () (item-choose \"door\" (list \"single\" \"double\")))"), expected);
}

TEST(RoutineCalls, ItemChooseTakesAListFromASetqBeforeOrBehindIt) {
    EXPECT_EQ(NamesIn(L"(setq a 1 all '(\"x\" \"y\") b \"c\") (item-choose \"door\" all)"),
              (Names{L"door_x \"x\"", L"door_y \"y\""}));
    EXPECT_EQ(NamesIn(L"(item-choose \"door\" all)\n(setq all (list \"x\"))"), Names{L"door_x \"x\""});
}

TEST(RoutineCalls, WhatIsComputedIsLeftAlone) {
    EXPECT_EQ(NamesIn(L"(item-choose \"door\" (variants))"), Names());
    EXPECT_EQ(NamesIn(L"(item-choose \"door\" unknown)"), Names());
    EXPECT_EQ(NamesIn(L"(item-choose name '(\"a\"))"), Names());
    EXPECT_EQ(NamesIn(L"(item-choose \"door\" '(\"a\" b))"), Names());
    EXPECT_EQ(NamesIn(L"(item-choose \"door\" '(\"a\" . \"b\"))"), Names{L"door_a \"a\""});
    EXPECT_TRUE(ReadRoutine(L"(item-choose) (setq) (setq a) (quote) '(setq \"a\" \"b\")").calls.size() == 1);
}

TEST(RoutineCalls, NumbersOfTextsAndFilesThatAreLoadedAreCollected) {
    const RoutineContents contents = ReadRoutine(
        L"(load \"item.lsp\") (load name) (item-words 5101 \"a\" nil) (res-text 7) (res-text n) (res-text "
        L"70000)");
    EXPECT_EQ(contents.textNumbers, (std::vector<unsigned>{5101, 7}));
    EXPECT_EQ(contents.loads, std::vector<std::wstring>{L"item.lsp"});
}

}  // namespace
