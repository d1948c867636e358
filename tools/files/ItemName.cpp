#include "tools/files/ItemName.h"

#include <algorithm>

namespace tavrin::tools {

namespace {

wchar_t Capital(wchar_t character) {
    return character >= L'a' && character <= L'z' ? static_cast<wchar_t>(character - L'a' + L'A') : character;
}

}  // namespace

std::optional<std::string> WithoutEnding(std::string_view name, std::wstring_view ending) {
    if (name.size() < ending.size()) {
        return std::nullopt;
    }
    const std::size_t length = name.size() - ending.size();
    const std::string_view found = name.substr(length);
    const auto isSame = [](char byte, wchar_t character) {
        return Capital(static_cast<unsigned char>(byte)) == Capital(character);
    };
    if (!std::equal(found.begin(), found.end(), ending.begin(), ending.end(), isSame)) {
        return std::nullopt;
    }
    return std::string(name.substr(0, length));
}

}  // namespace tavrin::tools
