// tavrincheck extract.
#include "tools/tavrincheck/ExtractCommand.h"

#include "tests/unit/tools/ToolFolder.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

class ExtractCommand : public testing::Test {
protected:
    std::string Run(std::vector<std::string> arguments) {
        return folder.Short(OutputOf([&] { EXPECT_EQ(RunExtract(arguments), 0); }));
    }
    std::string ErrorOf(const std::vector<std::string>& arguments) {
        try {
            RunExtract(arguments);
            return "(none)";
        } catch (const std::runtime_error& error) {
            return folder.Short(error.what());
        }
    }

    CToolFolder folder;
};

constexpr const char* kLast =
    "The dialog reads the working file: what writes it must write the same placeholders.\n";

TEST_F(ExtractCommand, WithoutWriteOnlyShowsWhatItWouldDo) {
    const std::string file = folder.Write("a.TXT", "x\r\nDoor\r\nVAR\r\n$1 = \"Width\"R 1");
    const std::string script = folder.Write("t.rc", "STRINGTABLE\n{\n}\n");
    EXPECT_EQ(
        Run({file, "--from", "5", "--rc", script}),
        std::string(
            "--- t.rc\n+++ t.rc\n@@ -1,3 +1,5 @@\n STRINGTABLE\n {\n+    5 \"Door\"\n+    6 \"Width\"\n }\n"
            "--- a.TXT\n+++ a.TXT\n@@ -1,4 +1,4 @@\n x\r\n-Door\r\n+<<5>>\r\n VAR\r\n"
            "-$1 = \"Width\"R 1\n\\ No newline at end of file\n"
            "+$1 = \"<<6>>\"R 1\n\\ No newline at end of file\n") +
            kLast + "Nothing was written: --write does it.\n");
    EXPECT_EQ(folder.Read("a.TXT"), "x\r\nDoor\r\nVAR\r\n$1 = \"Width\"R 1");
    EXPECT_EQ(folder.Read("t.rc"), "STRINGTABLE\n{\n}\n");
}

TEST_F(ExtractCommand, WritesBothFilesAndTheSecondTimeNothing) {
    const std::string file = folder.Write("a.TXT", "x\n\nVAR\n$1 = \"Width\"R 1\n$2 = \"\"R 1\n");
    const std::string note = "a.TXT: line 5 stays: its label is empty, write one\n";
    EXPECT_EQ(Run({file, "--from=1501", "--write"}), note + "a.rc: written\na.TXT: written\n" + kLast);
    const std::string once = folder.Read("a.TXT");
    const std::string script = folder.Read("a.rc");
    EXPECT_EQ(once, "x\n\nVAR\n$1 = \"<<1501>>\"R 1\n$2 = \"\"R 1\n");
    EXPECT_EQ(Run({file, "--from=1501", "--write"}), note + "a.TXT: there is no literal label to move\n");
    EXPECT_EQ(folder.Read("a.TXT"), once);
    EXPECT_EQ(folder.Read("a.rc"), script);
}

TEST_F(ExtractCommand, AFileWithTheSameLabelsGetsTheSameNumbersAndLeavesTheScript) {
    const std::string script = folder.Write("t.rc", "STRINGTABLE\n{\n  9 \"Width\"\n}\n");
    const std::string file = folder.Write("a.TXT", "x\n\nVAR\n$1 = \"Width%\"R 1\n");
    EXPECT_EQ(Run({file, "--from", "1", "--rc", script, "--write"}), std::string("a.TXT: written\n") + kLast);
    EXPECT_EQ(folder.Read("a.TXT"), "x\n\nVAR\n$1 = \"<<9>>%\"R 1\n");
}

TEST_F(ExtractCommand, ANewScriptIsShownAsSuch) {
    const std::string file = folder.Write("a.TXT", "x\nDoor\n");
    EXPECT_EQ(Run({file, "--from", "1"}).substr(0, 66),
              "--- /dev/null\n+++ a.rc\n@@ -0,0 +1,12 @@\n+// Texts of a.TXT: string");
}

TEST_F(ExtractCommand, ANewScriptHasTheTextsOfTheModuleAndNoLabelTakesTheirNumbers) {
    const std::string file = folder.Write("a.TXT", "x\nDoor\nVAR\n$1 = \"Width\"R 1\nEND_VAR\n");
    Run({file, "--from", "1363", "--write"});
    EXPECT_NE(folder.Read("a.rc").find("    1363 \"  Parameters: \"\n"
                                       "    5019 \"No picture was found for any of the variants.\"\n"
                                       "    1364 \"Door\"\n    1365 \"Width\"\nEND\n"),
              std::string::npos)
        << folder.Read("a.rc");
}

TEST_F(ExtractCommand, ErrorsSayWhatToDo) {
    EXPECT_EQ(ErrorOf({}), "extract takes one file, not 0, see --help");
    EXPECT_EQ(ErrorOf({"a.TXT"}), "option '--from' is required, for example --from 1501");
    EXPECT_EQ(ErrorOf({"a.TXT", "--from", "0"}),
              "invalid value '0' for option '--from': expected a number from 1 to 65535");
    EXPECT_EQ(ErrorOf({"a.TXT", "b.TXT", "--from=1"}), "extract takes one file, not 2, see --help");
    EXPECT_EQ(ErrorOf({"a.TXT", "--frm", "1"}), "unknown option '--frm', see --help");
    EXPECT_EQ(ErrorOf({folder.Path("no.TXT"), "--from", "1"}), "no.TXT: the file cannot be opened");
    const std::string script = folder.Write("t.rc", "STRINGTABLE\n{\n  9 Width\n}\n");
    EXPECT_EQ(ErrorOf({folder.Write("a.TXT", "x\n"), "--from", "1", "--rc", script}),
              "t.rc:3: text 9 has no text in quotes after its number");
    EXPECT_EQ(ErrorOf({folder.Path("a.TXT"), "--from", "1", "--rc", folder.Path("./a.TXT")}),
              "./a.TXT: this is the template itself: give a string table script with --rc");
    EXPECT_EQ(ErrorOf({folder.Path("a.TXT"), "--from", "1", "--rc", folder.Write("t.dll", "MZ")}),
              "t.dll: texts cannot be added to a module: give its script");
}

TEST_F(ExtractCommand, HelpNeedsNoFile) {
    EXPECT_TRUE(Run({"--help"}).starts_with("tavrincheck extract"));
    EXPECT_EQ(ErrorOf({"--write=1"}), "option '--write' takes no value");
}

}  // namespace
