// The pages of the documentation, taken apart for the tests. Paths are relative to the sources.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace tests {

// A fenced block of code. Its info string may name a file that it shows: ```text file=../examples/call.lsp
struct CodeBlock {
    std::string file;  // relative to the page's folder; empty when it names none
    std::string text;  // with "\n" after each line
};

struct Page {
    std::filesystem::path path;
    std::vector<CodeBlock> blocks;
    std::vector<std::string> spans;              // `code` within the text
    std::vector<std::string> links;              // targets of [text](target) and of pictures
    std::set<std::string> anchors;               // of its headings
    std::vector<std::vector<std::string>> rows;  // cells of its tables' rows
};

Page ReadPage(const std::filesystem::path& path);

// README.md, CHANGELOG.md and all pages of docs/ and samples/.
const std::vector<Page>& AllPages();

// The text of a file, in UTF-8 with "\n" line ends. Templates and working files (*.TXT) are single-byte text.
std::string TextOf(const std::filesystem::path& path);

}  // namespace tests
