// Runs of the checker with their output, and the files that break every rule.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "tools/tavrincheck/CheckCommand.h"

namespace tests {

using namespace tavrin::tools;

struct CheckRun {
    int status = 0;
    std::string output;
    std::string errors;
};

inline CheckRun Check(const std::vector<std::string>& arguments) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    CheckRun run;
    run.status = RunCheck(arguments);
    std::fflush(stdout);
    run.output = testing::internal::GetCapturedStdout();
    run.errors = testing::internal::GetCapturedStderr();
    return run;
}

// Runs where the folder "bad" is.
class CBadFiles : public testing::Test {
protected:
    void SetUp() override { std::filesystem::current_path(BAD_FILES_PARENT); }
    void TearDown() override { std::filesystem::current_path(m_before); }

    static CheckRun CheckBadFiles(const std::vector<std::string>& options) {
        std::vector<std::string> arguments = {"bad", "--texts", "bad/texts/gate.it.rc", "--texts",
                                              "bad/texts/gate.en.rc"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        return Check(arguments);
    }

private:
    std::filesystem::path m_before = std::filesystem::current_path();
};

}  // namespace tests
