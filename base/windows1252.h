// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brelex {

/// The character of Windows-1252 byte `byte`. The five unassigned bytes (81, 8D, 8F, 90, 9D hex)
/// become the control characters of the same number, as in Windows.
[[nodiscard]] char32_t CharacterOfByte(unsigned char byte);

/// The Windows-1252 byte of `character`. Nothing if the code page lacks it.
[[nodiscard]] std::optional<unsigned char> ByteOfCharacter(char32_t character);

/// Decodes UTF-8. Every byte outside a valid sequence becomes U+FFFD. Overlong forms, surrogates
/// and values above 10FFFF are not valid.
[[nodiscard]] std::u32string DecodeUtf8(std::string_view utf8);

/// Windows-1252 bytes as UTF-8.
[[nodiscard]] std::string Utf8OfBytes(std::string_view bytes);

/// UTF-8 text as Windows-1252 bytes, up to the first character that the code page lacks.
struct EncodedText {
    std::string bytes;
    bool complete = true;  ///< false if the text was cut at a character outside the code page
};

[[nodiscard]] EncodedText BytesOfUtf8(std::string_view utf8);

}  // namespace brelex
