// A language that is given by its number.
#pragma once

#include <array>
#include <cstdio>
#include <string>

namespace tavrin::tools {

inline std::string LanguageName(unsigned id) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "language 0x%04X", id & 0xFFFFU);
    return text.data();
}

}  // namespace tavrin::tools
