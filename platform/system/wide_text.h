// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brelex {

/// The system's UTF-16 text as UTF-8. What is no valid UTF-16 becomes U+FFFD. Windows only.
[[nodiscard]] std::string Utf8OfWide(std::wstring_view text);

/// UTF-8 as the system's UTF-16 text. What is no valid UTF-8 becomes U+FFFD. Windows only.
[[nodiscard]] std::wstring WideOfUtf8(std::string_view text);

/// Text in the code page of the system's single-byte functions as UTF-8. Windows only.
[[nodiscard]] std::string Utf8OfAnsi(std::string_view text);

}  // namespace brelex
