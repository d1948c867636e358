// Kinds of characters of an item's file.
#pragma once

namespace tavrin::tools {

inline bool IsDigit(wchar_t character) {
    return character >= L'0' && character <= L'9';
}

// A space or what looks like one.
inline bool IsBlank(wchar_t character) {
    return character == L' ' || character == L'\t' || character == L'\v' || character == L'\f' ||
           character == L'\u00A0';
}

}  // namespace tavrin::tools
