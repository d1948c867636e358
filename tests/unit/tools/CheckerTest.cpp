// Single facts about what is found where.
#include "tools/rules/Checker.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tools/rules/PictureRules.h"

using namespace tavrin::tools;

namespace {

std::string File(const std::string& parameters) {
    return "Shelf\n<<2001>>\nVAR\n" + parameters + "END_VAR\n";
}

// The findings as "line:column rule".
std::vector<std::string> Positions(const std::vector<Finding>& findings) {
    std::vector<std::string> positions;
    for (const Finding& finding : findings) {
        positions.push_back(std::to_string(finding.line) + ":" + std::to_string(finding.column) + " " +
                            std::string(finding.rule->id));
    }
    return positions;
}

std::vector<std::string> Compared(const std::string& templateFile, const std::string& workingFile) {
    return Positions(ComparePair({"a.TXT", templateFile}, {"a_TMP.TXT", workingFile}));
}

using PositionList = std::vector<std::string>;

std::vector<std::string> Checked(const std::string& parameters) {
    return Positions(CheckText(File(parameters), CheckContext()));
}

TEST(Checker, ASmallTypeLetterDoesNotHideWhatIsWrongWithTheValue) {
    EXPECT_EQ(Checked("$1 = \"<<1501>>\"i 2.9\n$2 = \"<<1502>>\"i 123456789\n"),
              (PositionList{"4:16 type-small-letter", "4:18 value-fraction", "5:16 type-small-letter"}));
}

TEST(Checker, WhatStandsAroundAPlaceholderMayBeTooLongWithoutItsText) {
    const std::string text(35, 'x');
    EXPECT_EQ(Checked("$1 = \"12345<<1501>>" + text + "%\"D 9\n"), PositionList());
    EXPECT_EQ(Checked("$1 = \"12345<<1501>>" + text + "x\"D 9\n"), PositionList{"4:7 label-too-long"});
}

// Remarks may hold signs and numbers.
TEST(Checker, ALineThatWouldBeAParameterButForItsDollarIsMentioned) {
    EXPECT_EQ(Checked("$1 = \"<<1501>>\"D 9\n2 = \"<<1502>>\"D 9\n#3=\"<<1503>>\"I9\n"),
              (PositionList{"5:1 line-dollar", "6:1 line-dollar"}));
    EXPECT_EQ(Checked("$1 = \"<<1501>>\"D 9\n2\n2 = 5\n# 2 = \"x\"D 9\n; 2 = \"x\"D 9\n#\n = \"x\"D 9\n"),
              PositionList());
}

TEST(Checker, ANullCharacterInAShortFirstLineMakesNoUtf16) {
    const std::string file = std::string("a\0\n", 3) + "<<2001>>\nVAR\nEND_VAR\n";
    EXPECT_EQ(Positions(CheckText(file, CheckContext())),
              (PositionList{"1:2 null-character", "3:1 block-empty"}));
}

// The bytes of UTF-8 before the call count as the characters that they are.
TEST(Checker, ANameIsShownWhereItsCallHoldsItAndNotInARemarkBefore) {
    PictureContext context;
    context.exists = [](const std::string& name) { return name.ends_with(".TXT.png"); };
    context.baseName = "a.TXT";
    context.routine =
        "; \"b\"\r\n(princ \"\xC3\xA0\") (tavrinselmask \"x\" 0 \"b\" \"c\"\r\n \"b\")\r\n"
        "(foo (tavrinprevmask \"c\") (tavrinselmask \"x\" 1 \"\\\\d\"))";
    const std::vector<Finding> findings = CheckPictures(context);
    EXPECT_EQ(Positions(findings),
              (PositionList{"2:34 slide-missing", "2:38 slide-missing", "3:2 slide-missing",
                            "4:22 picture-missing", "4:48 slide-missing"}));
    EXPECT_EQ(findings[0].excerpt.text, "(princ \"\xC3\xA0\") (tavrinselmask \"x\" 0 \"b\" \"c\"");
}

TEST(Checker, ACopyOfATemplateWithANumberTwiceDoesNotDiffer) {
    const std::string file = File("$1 = \"<<1501>>\"D 900\n$1 = \"<<1502>>\"D 2100\n");
    EXPECT_EQ(Compared(file, file), PositionList());
}

TEST(Checker, OfANumberThatStandsTwiceTheLastLineIsCompared) {
    const std::string file = File("$1 = \"<<1501>>\"D 900\n$1 = \"<<1502>>\"D 2100\n");
    const std::string other = File("$1 = \"<<1502>>\"D 900\n$1 = \"<<1501>>\"D 2100\n");
    EXPECT_EQ(Compared(file, other), PositionList{"5:1 pair-label-differs"});
}

TEST(Checker, ALineWithASmallTypeLetterIsNotWrittenIntoTheTemplate) {
    EXPECT_EQ(Compared(File("$1 = \"<<1501>>\"D 900\n"), File("$1 = \"<<1502>>\"d 900\n")), PositionList());
}

TEST(Checker, NumbersThatDifferInZerosLookAlikeWhicheverComesFirst) {
    CheckContext context;
    const std::string file = File(
        "$7 = \"<<1501>> a\"D 9\n$1 = \"<<1501>> b\"D 9\n$001 = \"<<1501>> c\"D 9\n$01 = \"<<1501>> d\"D 9\n"
        "$02 = \"<<1501>> e\"D 9\n$2 = \"<<1501>> f\"D 9\n");
    EXPECT_EQ(Positions(CheckText(file, context)),
              (PositionList{"6:2 number-look-alike", "7:2 number-look-alike", "9:2 number-look-alike"}));
}

// Enough of them that the memory for what was seen grows several times.
TEST(Checker, FindsTheOneRepetitionAmongThousands) {
    std::string parameters;
    for (int number = 1; number <= 5000; ++number) {
        parameters += "$" + std::to_string(number) + " = \"<<1501>> " + std::to_string(number) + "\"D 9\n";
    }
    CheckContext context;
    EXPECT_EQ(Positions(CheckText(File(parameters + "$77 = \"<<1501>> 4999\"D 9\n"), context)),
              (PositionList{"5004:1 number-duplicate", "5004:8 label-duplicate"}));
}

// The reader sees such a line up to its null character, wherever the mistake stands.
TEST(Checker, NothingCanBeRepairedBeforeANullCharacter) {
    const std::string null(1, '\0');
    for (const std::string& rest : {"\"a" + null + "'D 5", "\"a" + null + "\"x 5", "a" + null + " D 5"}) {
        const PositionList positions = Checked("$1 = \"<<1501>>\"D 9\n$2 = " + rest + "\n");
        EXPECT_EQ(std::count(positions.begin(), positions.end(), "5:1 line-unread"), 1) << rest;
        EXPECT_EQ(positions.size(), 2U) << rest;
    }
}

TEST(Checker, AnOpenBlockWithoutParametersIsBothOpenAndEmpty) {
    EXPECT_EQ(Positions(CheckText("Shelf\n<<2001>>\nVAR\nremark\n", CheckContext())),
              (PositionList{"3:1 block-unclosed", "3:1 block-empty"}));
}

// A misspelt END_VAR excuses the next VAR, and that one alone; a right END_VAR ends it, too.
TEST(Checker, AMisspeltClosingLineExcusesOneOpeningLine) {
    const std::string parameter = "$1 = \"<<1501>>\"D 9\n";
    EXPECT_EQ(Checked(parameter + "end_var\nVAR\nVAR\n"),
              (PositionList{"5:1 block-line-misspelt", "7:1 block-nested"}));
    EXPECT_EQ(Checked(parameter + "end_var\nEND_VAR\nVAR\n$2 = \"<<1502>>\"D 9\nVAR\n"),
              (PositionList{"5:1 block-line-misspelt", "9:1 block-nested"}));
    EXPECT_EQ(Positions(CheckText(
                  "Shelf\n<<2001>>\nVAR\n" + parameter + "end_var\nEND_VAR\nVAR\n$2 = \"<<1502>>\"D 9\n",
                  CheckContext())),
              (PositionList{"5:1 block-line-misspelt", "7:1 block-unclosed"}));
}

TEST(Checker, ADecimalCommaDirectlyFollowsItsNumber) {
    EXPECT_EQ(Checked("$1 = \"<<1501>>\"D 5,3\n"), PositionList{"4:19 value-comma"});
    EXPECT_EQ(Checked("$1 = \"<<1501>>\"D 5 ,3\n"), PositionList{"4:20 value-trailing-text"});
    EXPECT_EQ(Checked("$1 = \"<<1501>>\"D ,3\n"), PositionList{"4:18 value-no-number"});
}

TEST(Checker, SignsInOrdinaryTextAreNoPlaceholder) {
    EXPECT_EQ(Checked("$1 = \"a < 3 mm, b > c\"D 9\n"), PositionList{"4:7 label-no-placeholder"});
    EXPECT_EQ(Checked("$1 = \"3 > 2\"D 9\n"), PositionList{"4:7 label-no-placeholder"});
    EXPECT_EQ(Checked("$1 = \"a <3> b\"D 9\n"), PositionList{"4:9 placeholder-broken"});
}

TEST(Checker, AUsedWorkingFileIsNotedOnce) {
    CheckContext context;
    context.isWorkingFile = true;
    EXPECT_EQ(Positions(CheckText(File("#1 = 900\n$2 = 1\n"), context)),
              PositionList{"4:1 working-file-used"});
}

TEST(Checker, AUsedWorkingFileIsNotCompared) {
    EXPECT_EQ(Compared(File("$1 = \"<<1501>>\"D 900\n"), File("#1 = 900\n")), PositionList());
}

TEST(Checker, AWorkingFileThatEndsBeforeItsTemplateIsLaidOutOtherwise) {
    const std::string file = "Shelf\n<<2001>>\nVAR\n$1 = \"<<1501>>\"D 900\n";
    EXPECT_EQ(Compared(file + "END_VAR\n", file), PositionList{"0:0 pair-layout"});
    EXPECT_EQ(Compared(file, file + "END_VAR\n"), PositionList{"5:1 pair-layout"});
}

TEST(Checker, ARoutineThatIsNoUtf8IsReadInASingleByteCodePage) {
    PictureContext context;
    context.exists = [](const std::string& name) { return name == "a.png"; };
    context.baseName = "a";
    context.routine = "(tavrinprevmask \"\xE0\")";
    const std::vector<Finding> findings = CheckPictures(context);
    EXPECT_EQ(Positions(findings), PositionList{"1:17 picture-missing"});
    EXPECT_EQ(findings[0].length, 3U);
    EXPECT_EQ(findings[0].excerpt.text, "(tavrinprevmask \"\xC3\xA0\")");
}

TEST(Checker, AVariantOfItemChooseNeedsASlide) {
    PictureContext context;
    context.exists = [](const std::string& name) {
        return name == "door.png" || name == "door_single_t.png";
    };
    context.baseName = "door";
    context.routine = "(setq kinds '(\"single\" \"double\"))\n(item-choose \"door\" kinds)";
    EXPECT_EQ(Positions(CheckPictures(context)), PositionList{"1:24 slide-missing"});
}

}  // namespace
