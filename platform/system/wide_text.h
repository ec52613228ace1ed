// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brelex {

/// Converts the system's UTF-16 text to UTF-8. Invalid UTF-16 becomes U+FFFD. Windows only.
[[nodiscard]] std::string Utf8OfWide(std::wstring_view text);

/// Converts UTF-8 to the system's UTF-16 text. Invalid UTF-8 becomes U+FFFD. Windows only.
[[nodiscard]] std::wstring WideOfUtf8(std::string_view text);

/// Converts text in the code page of the system's single-byte functions to UTF-8. Windows only.
[[nodiscard]] std::string Utf8OfAnsi(std::string_view text);

}  // namespace brelex
