#include "tools/files/FileLines.h"

#include <algorithm>

namespace tavrin::tools {

LineBytes TakeLine(std::string_view& bytes) {
    const std::size_t lineFeed = bytes.find('\n');
    LineBytes line{bytes.substr(0, lineFeed), {}};
    if (lineFeed != std::string_view::npos) {
        const bool hasReturn = line.text.ends_with('\r');
        line.text.remove_suffix(hasReturn ? 1 : 0);
        line.ending = hasReturn ? "\r\n" : "\n";
    }
    bytes.remove_prefix(line.text.size() + line.ending.size());
    return line;
}

std::wstring CharactersOf(std::string_view bytes) {
    std::wstring text(bytes.size(), L'\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(), CharacterOf);
    return text;
}

std::vector<FileLine> SplitLines(std::string_view bytes) {
    std::vector<FileLine> lines;
    while (!bytes.empty()) {
        const LineBytes line = TakeLine(bytes);
        lines.push_back({CharactersOf(line.text), std::string(line.ending)});
    }
    return lines;
}

itemdlg::TextLines TextsOf(const std::vector<FileLine>& lines) {
    itemdlg::TextLines texts;
    texts.reserve(lines.size());
    for (const FileLine& line : lines) {
        texts.push_back(line.text);
    }
    return texts;
}

std::string BytesOf(std::wstring_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (const wchar_t character : text) {
        bytes += static_cast<char>(static_cast<unsigned char>(character));
    }
    return bytes;
}

}  // namespace tavrin::tools
