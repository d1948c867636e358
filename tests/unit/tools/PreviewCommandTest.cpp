// tavrincheck preview: which files it takes, and its options.
#include "tools/tavrincheck/PreviewCommand.h"

#include "tests/unit/tools/ToolFolder.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

class PreviewCommand : public testing::Test {
protected:
    std::string Run(std::vector<std::string> arguments) {
        return folder.Short(OutputOf([&] { EXPECT_EQ(RunPreview(arguments), 0); }));
    }
    std::string ErrorOf(const std::vector<std::string>& arguments) {
        try {
            RunPreview(arguments);
            return "(none)";
        } catch (const std::runtime_error& error) {
            return folder.Short(error.what());
        }
    }
    static bool Has(const std::string& output, const std::string& part) {
        return output.find(part) != std::string::npos;
    }

    CToolFolder folder;
};

TEST_F(PreviewCommand, ATemplateStandsForTheWorkingFileToo) {
    const std::string output = Run({folder.Write("a.TXT", "x\r\nt\r\nVAR\r\n$1 = \"<<7>>\"R 1\r\n")});
    EXPECT_TRUE(Has(output, "   4  $1      real number  <<7>>  1\n")) << output;
    EXPECT_TRUE(Has(output, "+++ a_TMP.TXT after OK\n")) << output;
    EXPECT_TRUE(Has(output, "-$1 = \"<<7>>\"R 1\n+$1 = \"<<7>>\"R1\n")) << output;
}

TEST_F(PreviewCommand, AWorkingFileHasItsTemplateAndPictureBesideIt) {
    const std::string working = folder.Write("a_tmp.txt", "x\nt\nVAR\n$1 = \"<<7>>\"R 2\n");
    EXPECT_TRUE(Has(Run({working}), "\"File not found!\": there is no a.TXT\n"));
    folder.Write("a.TXT", "x\r\nVAR\r\n$1 = \"<<7>>\"R 1\r\n");
    folder.Write("a.png", "");
    const std::string output = Run({working});
    EXPECT_TRUE(Has(output, "Picture:  a.png\n")) << output;
    EXPECT_TRUE(Has(output, "-$1 = \"<<7>>\"R 1\n+$1 = \"<<7>>\"R2\n")) << output;
}

TEST_F(PreviewCommand, OptionsReachTheDialog) {
    const std::string file =
        folder.Write("a.TXT", "x\n<<9>>\nVAR\n$1 = \"<<7>>%\"D 1.5\n$2 = \"<<8>>\"R 2\n");
    const std::string texts =
        folder.Write("t.rc", "#pragma code_page(65001)\nSTRINGTABLE { 7 \"Größe\" 9 \"T\" 1363 \"P: \" }");
    const std::string output = Run({"--texts", texts, "--scale=10", "--mode", "1", "--lunits", "4",
                                    "--luprec", "2", "--set", "2=35", file});
    EXPECT_TRUE(Has(output, "Header:   P: T\n")) << output;
    EXPECT_TRUE(Has(output, "   4  $1      distance     Größe  1'-3\"  read-only\n")) << output;
    EXPECT_TRUE(Has(output, "   5  $2      real number         35\n")) << output;
    EXPECT_TRUE(Has(output, "+#2 = 3.5\n")) << output;
    EXPECT_TRUE(Has(output, "text 8 is missing and shown as an empty text\n")) << output;
}

TEST_F(PreviewCommand, ErrorsSayWhatToDo) {
    const std::string file = folder.Write("a.TXT", "x\n");
    EXPECT_EQ(ErrorOf({}), "a preview takes one file, not 0, see --help");
    EXPECT_EQ(ErrorOf({"a", "b"}), "a preview takes one file, not 2, see --help");
    EXPECT_EQ(ErrorOf({"--scale", "x", file}),
              "invalid value 'x' for option '--scale': expected a number, for example 0.001");
    EXPECT_EQ(ErrorOf({"--lunits=6", file}),
              "invalid value '6' for option '--lunits': expected a number from 1 to 5");
    EXPECT_EQ(ErrorOf({"--set", "900", file}),
              "invalid value '900' for option '--set': expected NUMBER=VALUE, for example 1=900");
    EXPECT_EQ(ErrorOf({"--set", "1=5", file}), "there is no parameter with the number '1'");
    EXPECT_EQ(ErrorOf({file, "--texts"}), "option '--texts' requires a value, for example TavrinRes.rc");
    EXPECT_EQ(ErrorOf({file, "--texts", folder.Path("t.rc")}), "t.rc: the file cannot be opened");
}

TEST_F(PreviewCommand, HelpNeedsNoFile) {
    EXPECT_TRUE(Run({"--help"}).starts_with("tavrincheck preview"));
    EXPECT_EQ(ErrorOf({"--scala", "1"}), "unknown option '--scala', see --help");
}

}  // namespace
