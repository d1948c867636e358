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
    const char* const end = text.data() + text.size();
    const auto [last, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && last == end ? std::optional(number) : std::nullopt;
}
