// What all fuzz targets share.
#include "tests/fuzz/Fuzz.h"

#include <cstdio>
#include <cstdlib>

void Require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

std::wstring WideText(std::string_view bytes) {
    constexpr wchar_t beyond[] = {0, 0x100, 0x2212, 0xFFFF};
    std::wstring text;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        text.push_back(code >= 1 && code <= 3 ? beyond[code] : static_cast<wchar_t>(code));
    }
    return text;
}

std::string_view CutLine(std::string_view& bytes) {
    const std::size_t end = bytes.find('\n');
    const std::string_view line = bytes.substr(0, end);
    bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    return line;
}
