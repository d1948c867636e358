// Letter case as the pattern matcher sees it: one character to one character and the same on every
// machine, whatever the locale. Capitals are A to Z and the Latin-1 capitals U+00C0 to U+00DE without the
// multiplication sign U+00D7; each stands 0x20 below its small letter. No other character has a case here:
// the texts are single-byte files, so nothing beyond U+00FF needs one.
#pragma once

constexpr wchar_t kCaseDistance = 0x20;

constexpr bool IsCapital(wchar_t character) {
    return (character >= L'A' && character <= L'Z') ||
           (character >= 0xC0 && character <= 0xDE && character != 0xD7);
}

// The small letter of a capital; any other character unchanged.
constexpr wchar_t LowerForm(wchar_t character) {
    return IsCapital(character) ? static_cast<wchar_t>(character + kCaseDistance) : character;
}

// The capital whose small letter this is; any other character unchanged.
constexpr wchar_t CapitalForm(wchar_t character) {
    const auto capital = static_cast<wchar_t>(character - kCaseDistance);
    return character >= kCaseDistance && IsCapital(capital) ? capital : character;
}
