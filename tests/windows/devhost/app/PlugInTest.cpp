// Loading and unloading: what is no plug-in or does not want to be one is named, and nothing stays behind.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/windows/devhost/app/HostProcess.h"

using namespace tests;

namespace {

std::string Narrow(const std::wstring& text) {
    return {text.begin(), text.end()};
}

// Loading this file fails with one line that names it and says why.
void ExpectNotLoaded(const std::wstring& file, const std::string& why) {
    const Outcome outcome = CHostProcess({L"--plugin", file, L"--eval", L"(give-nil)"}, EStart::Bare).Wait();
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "DevHost: the plug-in '" + Narrow(file) + "' " + why + "\n");
}

TEST(PlugIn, AFileThatIsNotThereIsNamed) {
    const CTestFolder folder;
    folder.MakeFolder(L"folder.dll");
    for (const wchar_t* file : {L"nothing.dll", L"folder.dll", L"no\\where.dll"}) {
        ExpectNotLoaded(file, "does not exist: give --plugin an existing file");
    }
}

TEST(PlugIn, AFileThatIsNoLibraryIsNamed) {
    const CTestFolder folder;
    folder.Write(L"text.dll", "This is not a library.");
    folder.Write(L"empty.dll", "");
    folder.Write(L"noextension", "This is not a library.");
    const std::string bits = std::to_string(8 * sizeof(void*));
    for (const wchar_t* file : {L"text.dll", L"empty.dll", L"noextension"}) {
        ExpectNotLoaded(file, "is not a library for this DevHost, which needs a " + bits + "-bit DLL");
    }
}

TEST(PlugIn, ALibraryWithoutEntryPointIsNamed) {
    const std::wstring library = std::filesystem::path(HostProgram()).parent_path() / L"TD_Alloc.dll";
    ExpectNotLoaded(library, "has no entry point icrxEntryPoint: give --plugin a plug-in");
}

TEST(PlugIn, APlugInThatRefusesIsNamed) {
    const CEnvironment refuse(L"TESTPLUGIN_LOAD", L"refuse");
    const Outcome outcome = RunHost({L"--eval", L"(give-nil)"});
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors,
              "DevHost: the plug-in '" + Narrow(TestPlugIn()) + "' refused to be loaded: it returned 1\n");
}

TEST(PlugIn, APlugInThatReportsAFailureIsNotLoaded) {
    const CEnvironment fail(L"TESTPLUGIN_LOAD", L"fail");
    const Outcome outcome = RunHost({L"--eval", L"(give-nil)"});
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.output, "; error: not today\n");
    EXPECT_EQ(outcome.errors, "DevHost: the plug-in '" + Narrow(TestPlugIn()) +
                                  "' refused to be loaded: it reported 'not today'\n");
}

TEST(PlugIn, UnloadingFailsVisibly) {
    const CEnvironment refuse(L"TESTPLUGIN_UNLOAD", L"refuse");
    const Outcome outcome = RunHost({L"--eval", L"(give-nil)"});
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.output, "nil\n; heap: 0 blocks held\n");
    EXPECT_NE(outcome.errors.find("refused to be unloaded: it returned 1\n"), std::string::npos);
}

TEST(PlugIn, FunctionsThatStayDefinedAreNamed) {
    const CEnvironment keep(L"TESTPLUGIN_UNLOAD", L"keep");
    const Outcome outcome = RunHost({L"--eval", L"(give-nil)"});
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.output, "nil\n; heap: 0 blocks held\n");
    EXPECT_NE(outcome.errors.find("left functions defined when it was unloaded: ECHO GIVE-INT\n"),
              std::string::npos);
}

}  // namespace
