// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <string_view>

namespace brelex {

/// The weight of a Windows-1252 byte in the order of the entries. Most bytes are one element. A
/// ligature is two: its `secondPrimary` is not 0. NUL and the soft hyphen are none: their `primary`
/// is 0. Upper and lower case weigh the same.
struct ByteWeight {
    std::uint8_t primary;
    std::uint8_t secondPrimary;
    std::uint8_t accent;
    std::uint8_t residue;

    /// Whether the byte is exactly one element, without accent and residue. Texts of such bytes can
    /// be compared byte by byte.
    [[nodiscard]] constexpr bool IsPlain() const {
        return primary != 0 && (secondPrimary | accent | residue) == 0;
    }
};

/// The weight of each byte. Gives the order of the Windows function CompareString with the system
/// default locale, ignoring case, in string sort (flags 4097), as measured with English settings.
/// Note that apostrophe, hyphen and blank weigh less than TAB, and digits less than letters.
extern const std::array<ByteWeight, 256> kByteWeights;

[[nodiscard]] inline const ByteWeight& WeightOf(char byte) {
    return kByteWeights[static_cast<unsigned char>(byte)];
}

/// The primary weight of each plain byte, 0 for any other. Plain bytes are equal if these are.
extern const std::array<std::uint8_t, 256> kPlainWeights;

[[nodiscard]] inline std::uint8_t PlainWeightOf(char byte) {
    return kPlainWeights[static_cast<unsigned char>(byte)];
}

/// Compares two texts of Windows-1252 bytes by the primary weights of their elements; a text that
/// begins another is less. Ties are decided by the accents from left to right, then by the
/// residues.
[[nodiscard]] std::weak_ordering CompareTexts(std::string_view left, std::string_view right);

/// Whether the two texts are equivalent for CompareTexts.
[[nodiscard]] bool EqualIgnoringCase(std::string_view left, std::string_view right);

/// EqualIgnoringCase for UTF-8 texts. A text with characters outside Windows-1252 equals only
/// itself.
[[nodiscard]] bool EqualIgnoringCaseUtf8(std::string_view left, std::string_view right);

}  // namespace brelex
