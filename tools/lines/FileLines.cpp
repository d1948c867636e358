#include "FileLines.h"

#include <algorithm>

std::vector<SFileLine> SplitLines(std::string_view bytes) {
    std::vector<SFileLine> lines;
    while (!bytes.empty()) {
        const std::size_t lineFeed = bytes.find('\n');
        std::string_view text = bytes.substr(0, lineFeed);
        bytes.remove_prefix(std::min(text.size() + 1, bytes.size()));
        std::string_view ending;
        if (lineFeed != std::string_view::npos) {
            const bool hasReturn = !text.empty() && text.back() == '\r';
            text.remove_suffix(hasReturn ? 1 : 0);
            ending = hasReturn ? "\r\n" : "\n";
        }
        SFileLine& line = lines.emplace_back();
        line.ending = ending;
        line.text.reserve(text.size());
        for (const char byte : text) {
            line.text += static_cast<wchar_t>(static_cast<unsigned char>(byte));
        }
    }
    return lines;
}

TextLines TextsOf(const std::vector<SFileLine>& lines) {
    TextLines texts;
    texts.reserve(lines.size());
    for (const SFileLine& line : lines) {
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

std::string WrittenFile(const TextLines& lines) {
    std::string bytes;
    for (const std::wstring& line : lines) {
        bytes += BytesOf(line) + "\r\n";
    }
    return bytes;
}
