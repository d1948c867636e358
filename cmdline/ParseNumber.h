// Numbers that the user types.
#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace tavrin::cmdline {

// Nothing unless the whole text is a number of the type.
template <class Number>
std::optional<Number> ParseNumber(std::string_view text) {
    Number number{};
    // cppcheck takes a caller's temporary for gone although the call is part of its full expression.
    // cppcheck-suppress danglingTemporaryLifetime
    const char* const end = text.data() + text.size();
    const auto [last, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && last == end ? std::optional(number) : std::nullopt;
}

}  // namespace tavrin::cmdline
