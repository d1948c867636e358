// The check as a whole: the samples are clean, and files that break every rule give just what is expected.
#include "CheckCommand.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "Files.h"
#include "RuleTable.h"

namespace {

struct SRun {
    int status;
    std::string output;
};

SRun Check(const std::vector<std::string>& arguments) {
    testing::internal::CaptureStdout();
    const int status = RunCheck(arguments);
    std::fflush(stdout);
    return {status, testing::internal::GetCapturedStdout()};
}

class CheckCommand : public testing::Test {
protected:
    void SetUp() override { std::filesystem::current_path(BAD_FILES_PARENT); }
    void TearDown() override { std::filesystem::current_path(m_before); }

    static std::vector<std::string> BadFiles() {
        return {"bad", "--texts", "bad/texts/gate.it.rc", "--texts", "bad/texts/gate.en.rc"};
    }

private:
    std::filesystem::path m_before = std::filesystem::current_path();
};

TEST_F(CheckCommand, FindsNothingInTheSamples) {
    const SRun run = Check({TAVRIN_SAMPLES, "--texts", TAVRIN_SAMPLES "/texts/TavrinRes.it.rc", "--texts",
                            TAVRIN_SAMPLES "/texts/TavrinRes.en.rc"});
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.status, 0);
}

TEST_F(CheckCommand, FindsJustWhatIsBad) {
    const SRun run = Check(BadFiles());
    EXPECT_EQ(run.output, ReadBytes("bad.expected"));
    EXPECT_EQ(run.status, 1);
}

TEST_F(CheckCommand, HasAnExpectedFindingForEveryRule) {
    const std::string expected = ReadBytes("bad.expected");
    for (const SRule* rule : AllRules())
        EXPECT_NE(expected.find("[" + std::string(rule->id) + "]\n"), std::string::npos) << rule->id;
}

TEST_F(CheckCommand, LeavesOutADisabledRule) {
    std::vector<std::string> arguments = BadFiles();
    arguments.insert(arguments.end(), {"--disable", "line-tab,line-quote"});
    const SRun run = Check(arguments);
    EXPECT_EQ(run.output.find("[line-tab]"), std::string::npos);
    EXPECT_EQ(run.output.find("[line-quote]"), std::string::npos);
    EXPECT_NE(run.output.find("[line-equals]"), std::string::npos);
}

TEST_F(CheckCommand, AFileThatIsNotThereIsNoCleanRun) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(Check({"bad/no such file.TXT"}).status, 2);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("bad/no such file.TXT"), std::string::npos);
}

}  // namespace
