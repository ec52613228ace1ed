// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "search/wildcard_pattern.h"

namespace brelex {

/// The characters between words that a loose search does not tell apart: hyphens, commas,
/// apostrophes and blanks (Windows-1252 bytes).
[[nodiscard]] const WildcardPattern::ByteSet& LooseSeparators();

/// `text` with a single blank for each run of these characters.
[[nodiscard]] std::string LooseText(std::string_view text);

/// The length of the part of `text` that becomes the first `looseLength` bytes of LooseText(text).
/// A run belongs to it as a whole. Requires a `looseLength` of at most the length of that.
[[nodiscard]] std::size_t LengthBeforeLoosening(std::string_view text, std::size_t looseLength);

/// The pattern for a LooseText whose text was meant for `pattern`. It, too, has only one blank for
/// each run.
[[nodiscard]] WildcardPattern LoosePattern(const WildcardPattern& pattern);

}  // namespace brelex
