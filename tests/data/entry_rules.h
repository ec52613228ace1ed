// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brelex {

/// An expansion (UTF-8) without the notes in round brackets at its end.
[[nodiscard]] std::string_view WithoutNotes(std::string_view expansion);

/// What of an entry counts when it is compared with another: letters and digits, "+" and "#", of
/// both parts, without case, accents and notes. Takes UTF-8.
[[nodiscard]] std::string ComparableText(std::string_view abbreviation, std::string_view expansion);

/// Whether the letters of an abbreviation come in their order from its expansion, each from the
/// beginning of a word or from the same word as the one before. A digit may stand
/// for a number word, for "to" or "for", or repeat the letter beside it (W3C); x for "ex", "cross",
/// "trans", "extra" or "by"; a last s for a plural; and digits between the first and the last
/// letters for as many letters of a word (i18n). Takes UTF-8.
[[nodiscard]] bool HasPlausibleInitials(std::string_view abbreviation, std::string_view expansion);

}  // namespace brelex
