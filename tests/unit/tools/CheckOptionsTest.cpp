// The command line of the check and its exit status.
#include "tests/unit/tools/CheckRun.h"
#include "tests/unit/tools/ToolFolder.h"
#include "tools/files/Files.h"
#include "tools/rules/RuleTable.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

constexpr char kClean[] = "Shelf\n<<2001>>\nVAR\n$1 = \"<<1501>>\"D 900\nEND_VAR\n";
// A stray END_VAR is a note and no more.
constexpr char kNote[] = "Shelf\n<<2001>>\nVAR\n$1 = \"<<1501>>\"D 900\nEND_VAR\nEND_VAR\n";
constexpr char kBroken[] = "Shelf\n<<2001>>\nVAR\n$1 = \"<<1501>>\"d 900\nEND_VAR\n";

// Bytes that stand for a picture: the check looks whether it is there.
constexpr char kPicture[] = "png";

class CheckCommandLine : public testing::Test {
protected:
    std::string Item(const std::string& name, const std::string& bytes) const {
        m_folder.Write(name + ".png", kPicture);
        return m_folder.Write(name + ".TXT", bytes);
    }
    std::string Error(const std::vector<std::string>& arguments) const {
        try {
            Check(arguments);
        } catch (const std::runtime_error& error) {
            testing::internal::GetCapturedStdout();
            testing::internal::GetCapturedStderr();
            return error.what();
        }
        return "(no error)";
    }

    const CToolFolder m_folder;
};

TEST_F(CheckCommandLine, AFileWithoutMistakesGivesStatus0AndNoLine) {
    const CheckRun run = Check({Item("a", kClean)});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output + run.errors, "");
}

TEST_F(CheckCommandLine, AMistakeGivesStatus1) {
    const CheckRun run = Check({Item("a", kBroken)});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(
        m_folder.Short(run.output),
        "a.TXT:4:16: error: the type letter 'd' must be upper case: the parameter gets a warning instead of "
        "a row [type-small-letter]\n"
        "    $1 = \"<<1501>>\"d 900\n"
        "                   ^\n");
}

TEST_F(CheckCommandLine, ANoteCountsForTheStatusOnlyWhenStrict) {
    const std::string file = Item("a", kNote);
    const CheckRun run = Check({file});
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.output.find("[block-close-stray]"), std::string::npos);
    EXPECT_EQ(Check({"--strict", file}).status, 1);
    EXPECT_EQ(Check({"--strict", "--disable=block-close-stray", file}).status, 0);
}

TEST_F(CheckCommandLine, ADisabledMistakeDoesNotCountForTheStatus) {
    EXPECT_EQ(Check({Item("a", kBroken), "--disable", "type-small-letter"}).status, 0);
}

TEST_F(CheckCommandLine, AFileThatIsNotThereGivesStatus2AndTheOthersAreChecked) {
    const CheckRun run = Check({m_folder.Path("none.TXT"), Item("a", kBroken)});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(m_folder.Short(run.errors), "tavrincheck: none.TXT: there is no such file or folder\n");
    EXPECT_NE(run.output.find("[type-small-letter]"), std::string::npos);
}

// The memory of a process is a file that is there and cannot be read from its beginning.
TEST_F(CheckCommandLine, AFileThatCannotBeReadGivesStatus2) {
    const CheckRun run = Check({"/proc/self/mem"});
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.errors.find("/proc/self/mem"), std::string::npos);
}

TEST_F(CheckCommandLine, AFolderStandsForTheFilesInItAndBelow) {
    std::filesystem::create_directories(m_folder.Path("below"));
    Item("b", kBroken);
    Item("below/a", kBroken);
    Item("c", kClean);
    m_folder.Write("d.txt", kBroken);
    m_folder.Write("e.lsp", kBroken);
    const CheckRun run = Check({m_folder.Path("")});
    EXPECT_EQ(run.status, 1);
    const std::string output = m_folder.Short(run.output);
    const std::size_t first = output.find("b.TXT:4:16: ");
    const std::size_t second = output.find("below/a.TXT:4:16: ");
    EXPECT_LT(first, second);
    EXPECT_NE(second, std::string::npos);
    EXPECT_EQ(output.find("d.txt"), std::string::npos);
    EXPECT_EQ(output.find("e.lsp"), std::string::npos);
}

TEST_F(CheckCommandLine, ALinkInAFolderThatLeadsNowhereIsAFileThatCannotBeRead) {
    std::filesystem::create_symlink("nowhere", m_folder.Path("a.TXT"));
    const CheckRun run = Check({m_folder.Path("")});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(m_folder.Short(run.errors), "tavrincheck: a.TXT: the file cannot be opened\n");
}

TEST_F(CheckCommandLine, AFolderWithoutItemFilesIsCleanButMentioned) {
    m_folder.Write("a.txt", kBroken);
    const CheckRun run = Check({m_folder.Path("")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(m_folder.Short(run.errors), "tavrincheck: : there is no *.TXT in this folder\n");
}

// Windows does not distinguish them either.
TEST_F(CheckCommandLine, ANameInSmallLettersIsThatOfAnItemToo) {
    const std::string file = m_folder.Write("a_tmp.txt", "Shelf\n<<2001>>\nVAR\n#1 = 900\nEND_VAR\n");
    EXPECT_EQ(
        m_folder.Short(Check({file}).output),
        "a_tmp.txt:4:1: note: an OK has replaced this parameter by its value: the next dialog on this file "
        "has no row for it, unless the item's routine writes the file anew [working-file-used]\n"
        "    #1 = 900\n    ^~~~~~~~\n");
    EXPECT_NE(Check({m_folder.Write("a.txt", kClean)}).output.find("[picture-missing]"), std::string::npos);
}

TEST_F(CheckCommandLine, AFileThatIsNamedTwiceIsCheckedOnce) {
    const std::string file = Item("a", kBroken);
    EXPECT_EQ(Check({file, file, m_folder.Path("./a.TXT")}).output, Check({file}).output);
}

TEST_F(CheckCommandLine, BehindTwoHyphensNothingIsAnOption) {
    const CheckRun run = Check({"--", "--strict"});
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.errors.find("--strict: there is no such file"), std::string::npos);
}

TEST_F(CheckCommandLine, ACommandLineThatMakesNoSenseSaysWhatToDo) {
    EXPECT_EQ(Error({}), "nothing to check: give a file or a folder, or see --help");
    EXPECT_EQ(Error({"--colour", "a.TXT"}), "unknown option '--colour', see --help");
    EXPECT_EQ(Error({"--format", "xml", "a.TXT"}),
              "invalid value 'xml' for option '--format': expected text, json or sarif");
    EXPECT_EQ(Error({"a.TXT", "--format"}), "option '--format' requires a value, for example json");
    EXPECT_EQ(Error({"--strict=1", "a.TXT"}), "option '--strict' takes no value");
    EXPECT_EQ(Error({"--disable", "no-such", "a.TXT"}),
              "invalid value 'no-such' for option '--disable': expected the name of a rule, see --rules");
    EXPECT_NE(Error({"--texts", "none.rc", "a.TXT"}).find("none.rc"), std::string::npos);
}

TEST_F(CheckCommandLine, AllRulesAreListedWithWhatTheyMeanAndAnExample) {
    const CheckRun run = Check({"--rules"});
    EXPECT_EQ(run.status, 0);
    for (const Rule* rule : AllRules()) {
        const std::string heading = "\n### " + std::string(rule->id) + "\n\n";
        const std::size_t start = run.output.find(heading);
        ASSERT_NE(start, std::string::npos) << rule->id;
        EXPECT_EQ(run.output.find(heading, start + 1), std::string::npos) << rule->id;
        EXPECT_NE(run.output.find(rule->explanation, start), std::string::npos) << rule->id;
        EXPECT_FALSE(rule->example.empty()) << rule->id;
    }
}

TEST_F(CheckCommandLine, HelpAndVersionNeedNoFile) {
    EXPECT_NE(Check({"--help"}).output.find("--disable RULES"), std::string::npos);
    EXPECT_TRUE(Check({"--version"}).output.starts_with("tavrincheck "));
}

TEST_F(CheckCommandLine, TheFormForPeopleCanBeAskedFor) {
    const std::string file = Item("a", kBroken);
    EXPECT_EQ(Check({file, "--format=text"}).output, Check({file}).output);
}

}  // namespace
