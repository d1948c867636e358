// What DevHost says to its command line: results on the standard output, each mistake as one line on the
// standard error output that names it.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "tests/windows/devhost/app/HostProcess.h"

using namespace tests;

namespace {

Outcome RunBare(const std::vector<std::wstring>& arguments) {
    return CHostProcess(arguments, EStart::Bare).Wait();
}

// DevHost ended before anything was loaded or printed, with this one line.
void ExpectMistake(const Outcome& outcome, const std::string& line) {
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.errors, "DevHost: " + line + "\n");
    EXPECT_EQ(outcome.output, "");
}

TEST(CommandLine, HelpIsPrinted) {
    const Outcome outcome = RunBare({L"--help"});
    EXPECT_EQ(outcome.status, 0u);
    EXPECT_NE(outcome.output.find("--plugin FILE"), std::string::npos);
    EXPECT_EQ(outcome.errors, "");
}

TEST(CommandLine, AWrongOptionIsNamed) {
    ExpectMistake(RunBare({L"--evil"}), "unknown option '--evil', see --help");
    ExpectMistake(RunBare({L"--lunits", L"9"}),
                  "invalid value '9' for option '--lunits': expected a number from 1 to 5");
}

TEST(CommandLine, ASearchFolderMustBeAFolder) {
    const CTestFolder folder;
    folder.Write(L"file", "");
    for (const std::wstring name : {L"nowhere", L"file"}) {
        ExpectMistake(RunHost({L"--search", L".", L"--search", name, L"--eval", L"(give-nil)"}),
                      "the search folder '" + std::string(name.begin(), name.end()) +
                          "' does not exist: give --search an existing folder");
    }
}

TEST(CommandLine, ATextThatDoesNotParseIsFoundBeforeThePlugInIsLoaded) {
    const CEnvironment crash(L"TESTPLUGIN_LOAD", L"crash");
    ExpectMistake(RunHost({L"--eval", L"(give-nil)", L"--eval", L"(give-nil\n \"a"}),
                  "--eval '(give-nil  \"a': line 2, column 2: a string is not closed");
    ExpectMistake(RunHost({L"--eval", L" ; nothing"}), "--eval ' ; nothing': there is nothing to evaluate");
}

TEST(CommandLine, ThePlugInStandsBesideTheProgramUnlessItIsNamed) {
    const CTestFolder folder;
    namespace fs = std::filesystem;
    const fs::path host = fs::path(folder.Path()) / L"Another Name.exe";
    const fs::path bin = fs::path(HostProgram()).parent_path();
    fs::copy_file(HostProgram(), host);
    fs::copy_file(bin / L"TD_Alloc.dll", fs::path(folder.Path()) / L"TD_Alloc.dll");
    const std::wstring command = L"\"" + host.wstring() + L"\" --eval \"(give-int 1)\" > out.txt 2> err.txt";
    const auto run = [&] { return _wsystem((L"\"" + command + L"\"").c_str()); };
    EXPECT_EQ(run(), 1) << "without a plug-in beside it";
    fs::copy_file(TestPlugIn(), fs::path(folder.Path()) / L"TavrinWnd.dll");
    EXPECT_EQ(run(), 0);
}

TEST(CommandLine, EachExpressionOfEachTextIsEvaluatedInOrder) {
    const Outcome outcome = RunHost({L"--eval", L"(give-int 1) (echo 2)", L"--eval", L"'(a . b)", L"--eval",
                                     L"(echo (quote \"c\") -3 .5)"});
    EXPECT_EQ(outcome.status, 0u);
    EXPECT_EQ(outcome.output, "2147483647\n(2)\n(A . B)\n(\"c\" -3 0.5)\n; heap: 0 blocks held\n");
}

TEST(CommandLine, TheFirstFailureEndsTheEvaluations) {
    const Outcome outcome = RunHost({L"--eval", L"(give-nil) (unknown) (give-int 1)", L"--eval", L"5"});
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.output, "nil\n; heap: 0 blocks held\n");
    EXPECT_EQ(outcome.errors,
              "DevHost: line 1: the function UNKNOWN is not defined: check its name and whether the plug-in "
              "defines it\n");
}

// The program has a console as long as another process can attach to it.
bool HasConsole(const CHostProcess& host) {
    FreeConsole();
    const bool attached = AttachConsole(host.ProcessId()) != FALSE;
    FreeConsole();
    AttachConsole(ATTACH_PARENT_PROCESS);
    return attached;
}

TEST(CommandLine, AConsoleOfItsOwnIsLetGo) {
    CHostProcess host({}, EStart::OwnConsole);
    ASSERT_NE(host.MainWindow(), nullptr);
    EXPECT_FALSE(HasConsole(host));
    PostMessageW(host.MainWindow(), WM_CLOSE, 0, 0);
    EXPECT_EQ(host.Wait().status, 0u);
}

TEST(CommandLine, TheFolderOfItemsMayBeTheRootOfADrive) {
    const std::filesystem::path item = L"C:\\rootitem";
    std::filesystem::create_directory(item);
    std::ofstream(item / "rootitem.lsp") << "(defun rootitem () 7)";
    const Outcome outcome = RunBare({L"--items", L"C:\\", L"--eval", L"(load \"rootitem.lsp\")"});
    std::filesystem::remove_all(item);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.output.substr(0, 9), "ROOTITEM\n");
}

TEST(CommandLine, WithoutTheConsoleAMistakeIsShownInABox) {
    CHostProcess host({L"--evil"}, EStart::OwnConsole);
    const HWND box = host.WindowWithTitle(L"#32770", L"DevHost");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(TextOf(GetDlgItem(box, 0xFFFF)), L"unknown option '--evil', see --help");
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(host.Wait().status, 1u);
}

TEST(CommandLine, WithoutAnyConsoleAMistakeIsShownInABox) {
    CHostProcess host({L"--items", L"nowhere"}, EStart::NoConsole);
    const HWND box = host.WindowWithTitle(L"#32770", L"DevHost");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(TextOf(GetDlgItem(box, 0xFFFF)),
              L"the folder of items 'nowhere' does not exist: give --items an existing folder");
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(host.Wait().status, 1u);
}

TEST(CommandLine, TextsPassWholeInBothDirections) {
    EXPECT_EQ(Evaluate(L"(echo \"però 門 \U0001F6AA \\\"\\\\\\t\")"),
              "(\"per\xC3\xB2 \xE9\x96\x80 \xF0\x9F\x9A\xAA \\\"\\\\\\t\")\n");
}

}  // namespace
