#include "tests/unit/docs/Pages.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>

#include "encoding/Encoding.h"

namespace tests {

namespace fs = std::filesystem;

using tavrin::encoding::DecodeWindows1252;
using tavrin::encoding::EncodeUtf8;

namespace {

// As code hosting sites name a heading: lower case, blanks as hyphens, nothing but letters, digits and
// hyphens.
std::string AnchorOf(const std::string& heading) {
    std::string anchor;
    for (const char letter : heading) {
        const auto byte = static_cast<unsigned char>(letter);
        if (byte >= 0x80 || std::isalnum(byte) != 0 || letter == '_' || letter == '-') {
            anchor += static_cast<char>(std::tolower(byte));
        } else if (letter == ' ') {
            anchor += '-';
        }
    }
    return anchor;
}

std::vector<std::string> MatchesOf(const std::string& line, const char* pattern) {
    std::vector<std::string> found;
    const std::regex expression(pattern);
    for (std::sregex_iterator match(line.begin(), line.end(), expression), end; match != end; ++match) {
        found.push_back((*match)[1]);
    }
    return found;
}

// The cells of a table's row, without the blanks around them; "\|" is a bar within a cell.
std::vector<std::string> CellsOf(const std::string& line) {
    std::vector<std::string> cells(1);
    for (std::size_t at = 1; at < line.size(); ++at) {
        if (line.compare(at, 2, "\\|") == 0) {
            cells.back() += line[++at];
        } else if (line[at] == '|') {
            cells.emplace_back();
        } else {
            cells.back() += line[at];
        }
    }
    cells.pop_back();  // after the last bar
    for (std::string& cell : cells) {
        cell.erase(0, cell.find_first_not_of(' '));
        cell.erase(cell.find_last_not_of(' ') + 1);
    }
    return cells;
}

void AppendTo(std::vector<std::string>& list, const std::vector<std::string>& more) {
    list.insert(list.end(), more.begin(), more.end());
}

void ReadTextLine(Page& page, const std::string& line) {
    if (line.starts_with("#")) {
        page.anchors.insert(AnchorOf(line.substr(line.find_first_not_of("# "))));
    }
    if (line.starts_with("|")) {
        page.rows.push_back(CellsOf(line));
    }
    AppendTo(page.spans, MatchesOf(line, "`([^`]+)`"));
    AppendTo(page.links, MatchesOf(std::regex_replace(line, std::regex("`[^`]*`"), ""), R"(\]\(([^)]+)\))"));
}

}  // namespace

Page ReadPage(const fs::path& path) {
    Page page{path, {}, {}, {}, {}, {}};
    std::istringstream lines(TextOf(path));
    bool inBlock = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("```")) {
            inBlock = !inBlock;
            if (inBlock) {
                const std::size_t mark = line.find(" file=");
                page.blocks.push_back({mark == std::string::npos ? "" : line.substr(mark + 6), ""});
            }
        } else if (inBlock) {
            page.blocks.back().text += line + '\n';
        } else if (line.starts_with("    ")) {
            page.blocks.push_back({"", line.substr(4) + '\n'});
        } else {
            ReadTextLine(page, line);
        }
    }
    return page;
}

static std::vector<Page> ReadAllPages() {
    std::vector<fs::path> paths = {"README.md", "CHANGELOG.md"};
    for (const char* folder : {"docs", "samples"}) {
        for (const fs::directory_entry& file :
             fs::recursive_directory_iterator(fs::path(SOURCE_DIR) / folder)) {
            if (file.path().extension() == ".md") {
                paths.push_back(file.path().lexically_relative(SOURCE_DIR));
            }
        }
    }
    std::sort(paths.begin(), paths.end());
    std::vector<Page> pages;
    pages.reserve(paths.size());
    for (const fs::path& path : paths) {
        pages.push_back(ReadPage(path));
    }
    return pages;
}

const std::vector<Page>& AllPages() {
    static const std::vector<Page> pages = ReadAllPages();
    return pages;
}

std::string TextOf(const fs::path& path) {
    std::ifstream stream(fs::path(SOURCE_DIR) / path, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    std::erase(bytes, '\r');
    const bool isItemFile = path.extension() == ".TXT";
    return isItemFile ? EncodeUtf8(DecodeWindows1252(bytes)) : bytes;
}

}  // namespace tests
