// What the item dialog makes of a whole working file.
#include "itemdlg/ItemContents.h"

#include <gtest/gtest.h>

#include <cstddef>

#include "itemdlg/ItemFiles.h"

using namespace tavrin::itemdlg;

namespace {

std::wstring Lookup(unsigned number) {
    return number == kHeaderPrefixText ? L"Parameters: " : number == 2001 ? L"Door" : L"text";
}

ItemContents Read(const TextLines& lines, int mode = 0) {
    return ReadItem(lines, 10.0, mode, Lookup);
}

TEST(ItemContents, AFileOfOneLineHasNoTitle) {
    EXPECT_FALSE(Read({L"<<2001>>"}).title);
}

TEST(ItemContents, TheHeaderIsThePrefixAndTheTitle) {
    const ItemContents item = Read({L"x", L"<<2001>>"});
    EXPECT_EQ(item.title, L"Door");
    EXPECT_EQ(item.header, L"Parameters: Door");
}

TEST(ItemContents, ATitleEndsAtItsFirstNullCharacter) {
    const ItemContents item = Read({L"x", std::wstring(L"a\0b", 3)});
    EXPECT_EQ(item.title, L"a");
    EXPECT_EQ(item.header, L"Parameters: a");
}

TEST(ItemContents, ParametersStandInTheOrderOfTheirLines) {
    const ItemContents item =
        Read({L"x", L"t", L"VAR", L"$2 = \"b\"R 1", L"free", L"$1 = \"a\"I 2", L"END_VAR", L"$3 = \"c\"I 3"});
    ASSERT_EQ(item.parameters.size(), 2U);
    EXPECT_EQ(item.parameters[0].record.lineIndex, 3);
    EXPECT_EQ(item.parameters[0].record.realValue, 10.0);
    EXPECT_EQ(item.parameters[1].record.lineIndex, 5);
    EXPECT_EQ(item.parameters[1].record.number, L"1");
}

TEST(ItemContents, ALabelThatIsShownTakesItsSecondRow) {
    const ItemContents item = Read({L"VAR", L"t", L"$1 = \"a\"R 1", L"$2 = \"a%\"I 2", L"$3 = \"A\"I 3"});
    ASSERT_EQ(item.parameters.size(), 3U);
    EXPECT_EQ(item.parameters[0].row, PR_SHOWN);
    EXPECT_EQ(item.parameters[1].row, PR_LABEL_TAKEN);
    EXPECT_EQ(item.parameters[2].row, PR_SHOWN);
}

TEST(ItemContents, AnEmptyLabelIsTakenAsAnyOther) {
    const ItemContents item = Read({L"VAR", L"t", L"$1 = \"\"R 1", L"$2 = \"%\"I 2"});
    ASSERT_EQ(item.parameters.size(), 2U);
    EXPECT_EQ(item.parameters[0].row, PR_SHOWN);
    EXPECT_EQ(item.parameters[1].row, PR_LABEL_TAKEN);
}

TEST(ItemContents, InALongFileEachLabelIsShownOnce) {
    constexpr std::size_t kLabels = 3000;
    TextLines lines = {L"VAR", L"t"};
    for (std::size_t number = 0; number < 2 * kLabels; ++number) {
        lines.push_back(L"$" + std::to_wstring(number) + L" = \"" + std::to_wstring(number % kLabels) +
                        L"\"I 1");
    }
    const ItemContents item = Read(lines);
    ASSERT_EQ(item.parameters.size(), 2 * kLabels);
    for (std::size_t number = 0; number < 2 * kLabels; ++number) {
        EXPECT_EQ(item.parameters[number].row, number < kLabels ? PR_SHOWN : PR_LABEL_TAKEN) << number;
    }
}

TEST(ItemContents, AnInvalidTypeHasNoRowAndTakesNoLabel) {
    const ItemContents item = Read({L"VAR", L"t", L"$1 = \"a\"d 1", L"$2 = \"a\"D 2"});
    ASSERT_EQ(item.parameters.size(), 2U);
    EXPECT_EQ(item.parameters[0].row, PR_INVALID_TYPE);
    EXPECT_EQ(item.parameters[1].row, PR_SHOWN);
}

TEST(ItemContents, ATitleThatOpensABlockIsStillTheTitle) {
    const ItemContents item = Read({L"x", L"VAR", L"$1 = \"a\"R 1"});
    EXPECT_EQ(item.title, L"VAR");
    EXPECT_EQ(item.parameters.size(), 1U);
}

TEST(ItemContents, TheTitlesLineMayBeAParameterToo) {
    const ItemContents item = Read({L"VAR", L"$1 = \"a%\"R 1"}, 1);
    EXPECT_EQ(item.title, L"$1 = \"a%\"R 1");
    ASSERT_EQ(item.parameters.size(), 1U);
    EXPECT_FALSE(item.parameters[0].editable);
}

}  // namespace
