// Letter case for the matcher: one character to one character, the same in every locale. Capitals are A to Z
// and the Latin-1 capitals U+00C0 to U+00DE without the multiplication sign U+00D7; each is 0x20 below its
// small letter. Further letters have no case here: patterns name ASCII letters, so the case of other letters
// decides nothing, and with these pairs a set folds within its bitmap and a literal by one addition.
#pragma once

namespace tavrin::pattern {

constexpr wchar_t kCaseDistance = 0x20;

constexpr bool IsCapital(wchar_t character) {
    return (character >= L'A' && character <= L'Z') ||
           (character >= 0xC0 && character <= 0xDE && character != 0xD7);
}

// The small letter of a capital; any other character unchanged.
constexpr wchar_t LowerForm(wchar_t character) {
    return IsCapital(character) ? static_cast<wchar_t>(character + kCaseDistance) : character;
}

// The capital of a small letter; any other character unchanged.
constexpr wchar_t CapitalForm(wchar_t character) {
    const auto capital = static_cast<wchar_t>(character - kCaseDistance);
    return character >= kCaseDistance && IsCapital(capital) ? capital : character;
}

}  // namespace tavrin::pattern
