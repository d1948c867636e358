// Single facts about what is found where.
#include "Checker.h"

#include <gtest/gtest.h>

namespace {

std::string File(const std::string& parameters) {
    return "Shelf\n<<2001>>\nVAR\n" + parameters + "END_VAR\n";
}

// The findings as "line:column rule".
std::vector<std::string> Places(const std::vector<SFinding>& findings) {
    std::vector<std::string> places;
    for (const SFinding& finding : findings)
        places.push_back(std::to_string(finding.line) + ":" + std::to_string(finding.column) + " " +
                         std::string(finding.rule->id));
    return places;
}

std::vector<std::string> Compared(const std::string& templateFile, const std::string& workingFile) {
    return Places(ComparePair({"a.TXT", templateFile}, {"a_TMP.TXT", workingFile}));
}

using PlaceList = std::vector<std::string>;

TEST(Checker, ACopyOfATemplateWithANumberTwiceDoesNotDiffer) {
    const std::string file = File("$1 = \"<<1501>>\"D 900\n$1 = \"<<1502>>\"D 2100\n");
    EXPECT_EQ(Compared(file, file), PlaceList());
}

TEST(Checker, OfANumberThatStandsTwiceTheLastLineIsCompared) {
    const std::string file = File("$1 = \"<<1501>>\"D 900\n$1 = \"<<1502>>\"D 2100\n");
    const std::string other = File("$1 = \"<<1502>>\"D 900\n$1 = \"<<1501>>\"D 2100\n");
    EXPECT_EQ(Compared(file, other), PlaceList{"5:1 pair-label-differs"});
}

TEST(Checker, ALineWithASmallTypeLetterIsNotWrittenIntoTheTemplate) {
    EXPECT_EQ(Compared(File("$1 = \"<<1501>>\"D 900\n"), File("$1 = \"<<1502>>\"d 900\n")), PlaceList());
}

}  // namespace
