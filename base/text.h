// SPDX-License-Identifier: MIT
#pragma once

#include <charconv>
#include <concepts>
#include <optional>
#include <string_view>
#include <system_error>

namespace brelex {

/// `text` without the blanks at its ends.
[[nodiscard]] std::string_view TrimBlanks(std::string_view text);

/// `text` without the blanks, TABs and line ends at its ends.
[[nodiscard]] std::string_view TrimWhitespace(std::string_view text);

/// Removes the part before the first `separator`, and the separator itself, from the front of
/// `rest`. Returns that part. Without a separator, it is all of `rest`.
[[nodiscard]] std::string_view TakePart(std::string_view& rest, char separator);

/// The number that all of a text is, in decimal digits. Signed numbers may begin with a minus.
/// Nothing if the number is beyond its type.
template <std::integral Number>
[[nodiscard]] std::optional<Number> NumberOf(std::string_view text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

/// The capital of an ASCII letter. Any other character is returned unchanged.
[[nodiscard]] constexpr char AsciiCapital(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

}  // namespace brelex
