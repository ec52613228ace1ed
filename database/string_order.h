// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <string_view>

namespace brelex {

/// What a Windows-1252 byte counts for in the order of the entries. Most bytes are one element;
/// a ligature is two (`secondPrimary` is then not 0); NUL and the soft hyphen are none
/// (`primary` is 0). Upper and lower case weigh the same.
struct ByteWeight {
    std::uint8_t primary;
    std::uint8_t secondPrimary;
    std::uint8_t accent;
    std::uint8_t residue;

    /// True for a byte that is exactly one element without accent and residue. Texts of such bytes
    /// compare byte by byte.
    [[nodiscard]] constexpr bool IsPlain() const {
        return primary != 0 && (secondPrimary | accent | residue) == 0;
    }
};

/// The weights by byte. Their order is that of the Windows function CompareString with the system
/// default locale, ignoring case, in string sort (flags 4097), as measured with English settings.
/// Notable: apostrophe, hyphen and blank weigh less than TAB; digits less than letters.
extern const std::array<ByteWeight, 256> kByteWeights;

[[nodiscard]] inline const ByteWeight& WeightOf(char byte) {
    return kByteWeights[static_cast<unsigned char>(byte)];
}

/// The primary weight of a plain byte, 0 for any other. Plain bytes are equal if these are.
extern const std::array<std::uint8_t, 256> kPlainWeights;

[[nodiscard]] inline std::uint8_t PlainWeightOf(char byte) {
    return kPlainWeights[static_cast<unsigned char>(byte)];
}

/// Compares two texts of Windows-1252 bytes: first the primary weights of all elements, a text
/// that is the beginning of another being less; at a tie the accents from left to right; at a tie
/// the residues.
[[nodiscard]] std::weak_ordering CompareTexts(std::string_view left, std::string_view right);

/// Whether CompareTexts finds the two texts equivalent.
[[nodiscard]] bool EqualIgnoringCase(std::string_view left, std::string_view right);

/// EqualIgnoringCase for UTF-8 texts. Texts with characters outside Windows-1252 are equal only
/// if they are the same.
[[nodiscard]] bool EqualIgnoringCaseUtf8(std::string_view left, std::string_view right);

}  // namespace brelex
