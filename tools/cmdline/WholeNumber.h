// Numbers that the user types.
#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <system_error>

// The number that a text is as a whole; nothing when it is none or anything stands around it.
template <class Number>
std::optional<Number> WholeNumber(const std::string& text) {
    Number number{};
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = result.ec == std::errc() && result.ptr == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
}
