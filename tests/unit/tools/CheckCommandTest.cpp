// The check as a whole: the samples are clean, and files that break every rule give just what is expected.
#include "tests/unit/tools/CheckRun.h"
#include "tests/unit/tools/ToolFolder.h"
#include "tools/files/Files.h"
#include "tools/rules/RuleTable.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

class CheckCommand : public CBadFiles {};

TEST_F(CheckCommand, FindsNothingInTheSamples) {
    const CheckRun run = Check({TAVRIN_SAMPLES, "--texts", TAVRIN_SAMPLES "/texts/TavrinRes.it.rc", "--texts",
                                TAVRIN_SAMPLES "/texts/TavrinRes.en.rc"});
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.status, 0);
}

TEST_F(CheckCommand, FindsJustWhatIsBad) {
    const CheckRun run = CheckBadFiles({});
    EXPECT_EQ(run.output, ReadBytes("bad.expected"));
    EXPECT_EQ(run.status, 1);
}

TEST_F(CheckCommand, HasAnExpectedFindingForEveryRule) {
    const std::string expected = ReadBytes("bad.expected");
    for (const Rule* rule : AllRules()) {
        EXPECT_NE(expected.find("[" + std::string(rule->id) + "]\n"), std::string::npos) << rule->id;
    }
}

// The lines of an expected finding: its own, one of the file, and the underline.
TEST_F(CheckCommand, UnderlinesWhatTheColumnNames) {
    const std::string expected = ReadBytes("bad.expected");
    const std::size_t finding = expected.find("bad/files/values.TXT:7:19: ");
    ASSERT_NE(finding, std::string::npos);
    const std::size_t line = expected.find('\n', finding) + 1;
    const std::size_t underline = expected.find('\n', line) + 1;
    EXPECT_EQ(expected.find('^', underline) - underline, 4U + 19U - 1U);
    EXPECT_EQ(expected.substr(line + 4 + 19 - 1, 2), ",9");
}

TEST_F(CheckCommand, LeavesOutADisabledRule) {
    const CheckRun run = CheckBadFiles({"--disable", "line-tab,line-quote"});
    EXPECT_EQ(run.output.find("[line-tab]"), std::string::npos);
    EXPECT_EQ(run.output.find("[line-quote]"), std::string::npos);
    EXPECT_NE(run.output.find("[line-equals]"), std::string::npos);
}

// What is known of texts when none are given.
TEST_F(CheckCommand, SaysNothingOfTextsThatItDoesNotKnow) {
    const std::string output = Check({"bad"}).output;
    for (const char* rule : {"title-text-unknown", "text-unknown", "mark-from-text", "text-too-long",
                             "text-missing", "text-unused"}) {
        EXPECT_EQ(output.find("[" + std::string(rule) + "]"), std::string::npos) << rule;
    }
}

// LOAD adds the extension, and one file that cannot be read does not hide the others.
TEST(CheckRoutines, TextsOfTheFilesThatTheRoutineLoadsAreUsed) {
    const CToolFolder folder;
    std::filesystem::create_directory(folder.Path("gate"));
    folder.Write("gate/gate.TXT", "gate\n<<2001>>\nVAR\n$1 = \"<<1501>>\"D 900\nEND_VAR\n");
    folder.Write("gate/gate.lsp", "(load \"broken\") (load \"words\")");
    folder.Write("gate/broken.lsp", "(");
    folder.Write("words.lsp", "(res-text 1599)");
    const std::string texts = folder.Write("TavrinRes.en.rc",
                                           "LANGUAGE 0x09, 0x02\nSTRINGTABLE\nBEGIN\n1501 \"Width\"\n1599 "
                                           "\"Too wide\"\n2001 \"Gate\"\nEND\n");
    const CheckRun run = Check({folder.Path("gate"), "--texts", texts});
    EXPECT_EQ(run.output.find("[text-unused]"), std::string::npos) << run.output;
    EXPECT_NE(run.output.find("[picture-missing]"), std::string::npos) << run.output << run.errors;
}

}  // namespace
