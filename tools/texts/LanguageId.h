// The numbers of languages that scripts name by constants of the system's headers.
#pragma once

#include <optional>
#include <string_view>

namespace tavrin::tools {

// The value of a constant such as LANG_ITALIAN, 0 to 0x3FF; nothing when there is none of this name.
std::optional<unsigned> PrimaryLanguage(std::string_view name);
// The value of a constant such as SUBLANG_ITALIAN_SWISS, 0 to 0x3F.
std::optional<unsigned> Sublanguage(std::string_view name);

// The language of texts for which a script names none, as resource compilers have it: English (United
// States).
inline constexpr unsigned kDefaultLanguage = 0x0409;

// The number of a language as resources have it.
constexpr unsigned LanguageId(unsigned primary, unsigned secondary) {
    return primary | secondary << 10;
}

}  // namespace tavrin::tools
