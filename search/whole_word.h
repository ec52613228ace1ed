// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace brelex {

/// How to compare letters.
enum class ComparisonMode {
    Binary,  ///< byte by byte
    Text     ///< ignoring case
};

/// Whether `word` is a whole word in `field`, that is, whether it has delimiters or the ends of the
/// field on both sides. Only its first occurrence counts: in "abcd abc", "abc" is not a whole word.
/// Texts are Windows-1252 bytes.
[[nodiscard]] bool IsWholeWord(std::string_view field, std::string_view word, ComparisonMode mode);

}  // namespace brelex
