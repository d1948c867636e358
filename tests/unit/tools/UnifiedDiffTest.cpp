// The writer of diffs.
#include "tools/files/UnifiedDiff.h"

#include <gtest/gtest.h>

using namespace tavrin::tools;

namespace {

using Lines = std::vector<std::string>;

Lines Numbered(int count) {
    Lines lines;
    for (int i = 1; i <= count; ++i) {
        lines.push_back(std::to_string(i) + "\n");
    }
    return lines;
}

TEST(UnifiedDiff, OfNoEditsIsEmpty) {
    EXPECT_EQ(UnifiedDiff("a", "b", Numbered(3), EditsBetween(Numbered(3), Numbered(3))), "");
}

TEST(UnifiedDiff, ShowsThreeLinesOfContext) {
    EXPECT_EQ(UnifiedDiff("a", "b", Numbered(9), {{4, 1, {"x\n"}}}),
              "--- a\n+++ b\n@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+x\n 6\n 7\n 8\n");
}

TEST(UnifiedDiff, JoinsEditsWhoseContextMeets) {
    EXPECT_EQ(UnifiedDiff("a", "b", Numbered(9), {{0, 1, {"x\n"}}, {7, 1, {"y\n"}}}),
              "--- a\n+++ b\n@@ -1,9 +1,9 @@\n-1\n+x\n 2\n 3\n 4\n 5\n 6\n 7\n-8\n+y\n 9\n");
}

TEST(UnifiedDiff, CountsLaterHunksFromTheNewLinesToo) {
    EXPECT_EQ(UnifiedDiff("a", "b", Numbered(12), {{1, 0, {"x\n", "y\n"}}, {10, 2, {}}}),
              "--- a\n+++ b\n@@ -1,4 +1,6 @@\n 1\n+x\n+y\n 2\n 3\n 4\n"
              "@@ -8,5 +10,3 @@\n 8\n 9\n 10\n-11\n-12\n");
}

TEST(UnifiedDiff, MarksAMissingLastLineEnd) {
    EXPECT_EQ(
        UnifiedDiff("a", "b", {"1\n", "2"}, {{1, 1, {"x"}}}),
        "--- a\n+++ b\n@@ -1,2 +1,2 @@\n 1\n-2\n\\ No newline at end of file\n+x\n\\ No newline at end of "
        "file\n");
}

TEST(UnifiedDiff, OfANewFileHasAnEmptyOldRange) {
    EXPECT_EQ(UnifiedDiff("/dev/null", "b", {}, {{0, 0, {"x\n"}}}),
              "--- /dev/null\n+++ b\n@@ -0,0 +1 @@\n+x\n");
}

TEST(UnifiedDiff, NeighbouringChangesAreOneEdit) {
    const std::vector<LineEdit> edits = EditsBetween({"a", "b", "c", "d"}, {"a", "x", "y", "d"});
    ASSERT_EQ(edits.size(), 1U);
    EXPECT_EQ(edits[0].line, 1U);
    EXPECT_EQ(edits[0].removed, 2U);
    EXPECT_EQ(edits[0].added, (Lines{"x", "y"}));
}

}  // namespace
