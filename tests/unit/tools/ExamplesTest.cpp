// The worked examples of the documentation print what it shows.
#include <filesystem>

#include "tests/unit/tools/ToolFolder.h"
#include "tools/tavrincheck/ExtractCommand.h"
#include "tools/tavrincheck/PreviewCommand.h"

using namespace tests;
using namespace tavrin::tools;

namespace {

class Examples : public testing::Test {
protected:
    void SetUp() override { std::filesystem::current_path(TAVRIN_EXAMPLES); }
    void TearDown() override { std::filesystem::current_path(m_before); }

private:
    std::filesystem::path m_before = std::filesystem::current_path();
};

TEST_F(Examples, ThePreviewIsTheOneInTheDocumentation) {
    EXPECT_EQ(OutputOf([] {
                  RunPreview({"shelf.TXT", "--mode", "1", "--set", "1=1200"});
              }),
              ReadBytes("preview.txt"));
}

TEST_F(Examples, TheExtractionIsTheOneInTheDocumentation) {
    EXPECT_EQ(OutputOf([] {
                  RunExtract({"shelf.TXT", "--from", "3101", "--rc", "TavrinRes.rc"});
              }),
              ReadBytes("extract.txt"));
}

}  // namespace
