// An item's files as lines.
#include "tools/files/FileLines.h"

#include <gtest/gtest.h>

using namespace tavrin::itemdlg;

namespace {

using namespace tavrin::tools;
using namespace std::string_literals;

TEST(FileLines, BothLineEndsEndALineAndAreKept) {
    const std::vector<FileLine> lines = SplitLines("a\nb\r\n\r\nc");
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(TextsOf(lines), (TextLines{L"a", L"b", L"", L"c"}));
    EXPECT_EQ(lines[0].ending, "\n");
    EXPECT_EQ(lines[1].ending, "\r\n");
    EXPECT_EQ(lines[3].ending, "");
}

TEST(FileLines, OtherControlCharactersBelongToTheirLine) {
    EXPECT_EQ(TextsOf(SplitLines("a\rb\0c\x1A\r\r\nd\r"s)), (TextLines{L"a\rb\0c\x1A\r"s, L"d\r"}));
}

TEST(FileLines, AFileWithoutAByteHasNoLine) {
    EXPECT_TRUE(SplitLines("").empty());
    EXPECT_EQ(SplitLines("\n").size(), 1U);
}

TEST(FileLines, EveryByteComesBack) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    const TextLines lines = TextsOf(SplitLines(bytes));
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(BytesOf(lines[0]) + "\n" + BytesOf(lines[1]), bytes);
}

}  // namespace
