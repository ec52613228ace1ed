// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brelex {

/// The small letter of a letter that Windows-1252 has in both cases. Any other character is
/// returned unchanged.
[[nodiscard]] char32_t SmallLetterOf(char32_t character);

/// The same for a Windows-1252 byte.
[[nodiscard]] unsigned char SmallLetterOfByte(unsigned char byte);

/// A text with all its letters made small.
[[nodiscard]] std::u32string SmallLetters(std::u32string_view text);

}  // namespace brelex
