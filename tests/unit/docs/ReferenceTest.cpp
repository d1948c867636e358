// Tables of the documentation against the code that they describe.
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>

#include "devhost/options/Options.h"
#include "imagedlg/ChoiceLayout.h"
#include "tests/unit/docs/Pages.h"

using namespace tavrin::imagedlg;
using namespace tests;

namespace {

// What the page on pictures calls the content of a cell: a choice by its number, counted from 1.
std::string NameOf(int content) {
    if (content == kCellEmpty) {
        return "empty";
    }
    return content == kCellLogo ? "`logo.png`" : std::to_string(content + 1);
}

TEST(Documentation, SaysWhereEachChoiceStands) {
    int countsSeen = 0;
    for (const std::vector<std::string>& row : ReadPage("docs/authors/pictures.md").rows) {
        if (row.size() != 1 + kChoiceCells || row[0].size() != 1 || row[0][0] < '1' || row[0][0] > '6') {
            continue;
        }
        ++countsSeen;
        const auto count = static_cast<unsigned>(row[0][0] - '0');
        for (int cell = 1; cell <= kChoiceCells; ++cell) {
            EXPECT_EQ(row[static_cast<std::size_t>(cell)], NameOf(GetCellContent(count, cell)))
                << count << " choices, cell " << cell;
        }
    }
    EXPECT_EQ(countsSeen, 6);
}

// All source text of the folders whose messages authors and installers meet.
std::string SourcesOfTheModule() {
    std::string sources;
    for (const char* folder : {"host", "imagedlg", "itemdlg", "propgrid"}) {
        for (const auto& file :
             std::filesystem::directory_iterator(std::filesystem::path(SOURCE_DIR) / folder)) {
            if (file.path().extension() == ".cpp" || file.path().extension() == ".h") {
                sources += TextOf(file.path());
            }
        }
    }
    return sources;
}

// The first cells that are texts set as code: `File not found 'NAME_TMP.TXT'!`. What the module puts together
// is compared up to the name.
TEST(Documentation, QuotesTheModulesMessages) {
    const std::string sources = SourcesOfTheModule();
    int messagesSeen = 0;
    for (const char* page : {"docs/authors/functions.md", "docs/install.md"}) {
        for (const std::vector<std::string>& row : ReadPage(page).rows) {
            if (row[0][0] != '`') {
                continue;
            }
            const std::string text = row[0].substr(1, row[0].find('`', 1) - 1);
            if (text.find(' ') == std::string::npos) {
                continue;
            }
            ++messagesSeen;
            EXPECT_NE(sources.find("L\"" + text.substr(0, text.find("NAME"))), std::string::npos) << text;
        }
    }
    EXPECT_EQ(messagesSeen, 10);
}

// Every option in a call of DevHost.exe, and those that the page on DevHost mentions.
TEST(Documentation, UsesOptionsThatDevHostHas) {
    const std::wstring help = devhost::HelpText();
    const std::regex option("--[a-z]+(-[a-z]+)*");
    int optionsSeen = 0;
    for (const Page& page : AllPages()) {
        std::vector<std::string> calls;
        for (const CodeBlock& block : page.blocks) {
            const std::size_t call = block.text.find("DevHost.exe ");
            if (call != std::string::npos) {
                calls.push_back(block.text.substr(call));
            }
        }
        for (const std::string& span : page.spans) {
            if (span.starts_with("DevHost.exe ") ||
                (span.starts_with("--") && page.path.stem() == "devhost")) {
                calls.push_back(span);
            }
        }
        for (const std::string& call : calls) {
            for (std::sregex_iterator match(call.begin(), call.end(), option), end; match != end; ++match) {
                ++optionsSeen;
                const std::string text = match->str();
                EXPECT_NE(help.find(L" " + std::wstring(text.begin(), text.end()) + L" "), std::wstring::npos)
                    << page.path << ": " << call;
            }
        }
    }
    EXPECT_GT(optionsSeen, 10);
}

}  // namespace
