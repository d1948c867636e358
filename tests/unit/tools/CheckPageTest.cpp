// The page about the checker says what the program says.
#include "tests/unit/tools/CheckRun.h"
#include "tools/files/Files.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

class CheckPage : public testing::Test {
protected:
    void SetUp() override { std::filesystem::current_path(SOURCE_DIR "/docs"); }
    void TearDown() override { std::filesystem::current_path(m_before); }

private:
    std::filesystem::path m_before = std::filesystem::current_path();
};

// On the page, the headings are one level deeper.
std::string WithDeeperHeadings(std::string text) {
    text.insert(0, "\n");
    for (std::size_t at = text.find("\n##"); at != std::string::npos; at = text.find("\n##", at + 1)) {
        text.insert(at + 1, "#");
    }
    return text;
}

TEST_F(CheckPage, HoldsTheRulesOfTheProgram) {
    const std::string page = ReadBytes("tavrincheck.md");
    const std::string begin = "<!-- rules -->\n";
    const std::size_t start = page.find(begin);
    const std::size_t end = page.find("\n<!-- end of rules -->\n");
    ASSERT_NE(start, std::string::npos);
    ASSERT_NE(end, std::string::npos);
    EXPECT_EQ(page.substr(start + begin.size(), end - start - begin.size()),
              WithDeeperHeadings(Check({"--rules"}).output))
        << "make rules writes it";
}

TEST_F(CheckPage, ShowsTheFindingsOfItsExample) {
    std::filesystem::current_path("examples/tavrincheck");
    EXPECT_EQ(Check({"shelf.TXT"}).output, ReadBytes("findings.txt"));
}

}  // namespace
