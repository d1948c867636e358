// The documentation is right in what can be checked automatically: examples, links, names of files and
// targets.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>

#include "tests/unit/docs/Pages.h"

using namespace tests;

namespace {

namespace fs = std::filesystem;

bool IsThere(const fs::path& path) {
    return fs::exists(fs::path(SOURCE_DIR) / path);
}

TEST(Documentation, ShowsItsExamplesAsTheyAre) {
    for (const Page& page : AllPages()) {
        for (const CodeBlock& block : page.blocks) {
            if (block.file.empty()) {
                continue;
            }
            const fs::path file = (page.path.parent_path() / block.file).lexically_normal();
            EXPECT_TRUE(IsThere(file)) << page.path << " shows " << file;
            EXPECT_EQ(block.text, TextOf(file)) << page.path << " shows " << file;
        }
    }
}

TEST(Documentation, ShowsEachExample) {
    std::set<fs::path> shown;
    for (const Page& page : AllPages()) {
        for (const CodeBlock& block : page.blocks) {
            shown.insert((page.path.parent_path() / block.file).lexically_normal());
        }
        for (const std::string& link : page.links) {
            shown.insert((page.path.parent_path() / link).lexically_normal());
        }
    }
    const fs::path examples = fs::path(SOURCE_DIR) / "docs/examples";
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(examples)) {
        if (entry.is_regular_file()) {
            EXPECT_TRUE(shown.contains(entry.path().lexically_relative(SOURCE_DIR))) << entry.path();
        }
    }
}

TEST(Documentation, LinksToWhatIsThere) {
    std::map<fs::path, std::set<std::string>> anchors;
    for (const Page& page : AllPages()) {
        anchors[page.path] = page.anchors;
    }
    for (const Page& page : AllPages()) {
        for (const std::string& link : page.links) {
            const std::size_t mark = link.find('#');
            const std::string name = link.substr(0, mark);
            const fs::path file =
                name.empty() ? page.path : (page.path.parent_path() / name).lexically_normal();
            EXPECT_TRUE(IsThere(file)) << page.path << " links to " << link;
            if (mark != std::string::npos && file.extension() == ".md") {
                EXPECT_TRUE(anchors[file].contains(link.substr(mark + 1)))
                    << page.path << " links to " << link;
            }
        }
    }
}

// Everything in a page that is set as code.
std::vector<std::string> CodeOf(const Page& page) {
    std::vector<std::string> code = page.spans;
    for (const CodeBlock& block : page.blocks) {
        code.push_back(block.text);
    }
    return code;
}

TEST(Documentation, NamesTargetsOfMakeThatExist) {
    const std::string makefile = TextOf("Makefile");
    const std::regex call("(?:^|\n|&& )make ([a-z0-9-]+)");
    for (const Page& page : AllPages()) {
        for (const std::string& code : CodeOf(page)) {
            for (std::sregex_iterator match(code.begin(), code.end(), call), end; match != end; ++match) {
                EXPECT_NE(makefile.find("\n" + (*match)[1].str() + ":"), std::string::npos)
                    << page.path << ": " << match->str();
            }
        }
    }
}

// A path of the sources begins with one of their folders and goes on below it; what is built or written out
// does not.
TEST(Documentation, NamesFilesOfTheSourcesThatExist) {
    const std::regex path(
        "(?:^|[ "
        "\n(])((?:afx|cmake|devhost|docs|dyndlg|gallery|host|imagedlg|itemdlg|memory|propgrid|res|samples|"
        "scripts|"
        "sds|tests|tools)/[A-Za-z0-9_./-]*[A-Za-z0-9_/])");
    for (const Page& page : AllPages()) {
        if (page.path == "CHANGELOG.md") {
            continue;
        }
        for (const std::string& code : CodeOf(page)) {
            for (std::sregex_iterator match(code.begin(), code.end(), path), end; match != end; ++match) {
                EXPECT_TRUE(IsThere((*match)[1].str())) << page.path << ": " << match->str();
            }
        }
    }
}

}  // namespace
