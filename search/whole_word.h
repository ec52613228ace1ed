// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace brelex {

/// How letters are compared.
enum class ComparisonMode {
    Binary,  ///< byte by byte
    Text     ///< whatever their case
};

/// Whether `word` stands alone in `field`: between delimiters or the field's ends. Only its first
/// occurrence counts: in "abcd abc" the word "abc" does not stand alone. Texts are Windows-1252
/// bytes.
[[nodiscard]] bool IsWholeWord(std::string_view field, std::string_view word, ComparisonMode mode);

}  // namespace brelex
