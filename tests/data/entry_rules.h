// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brelex {

/// An expansion (UTF-8) without the notes in parentheses at its end.
[[nodiscard]] std::string_view WithoutNotes(std::string_view expansion);

/// Whether each parenthesis and bracket that is opened is closed by its like, and the other way
/// round.
[[nodiscard]] bool HasBalancedBrackets(std::string_view text);

/// Reduces an entry (UTF-8) to the characters that count when two entries are compared: letters,
/// digits, "+" and "#" of both parts, ignoring case, accents and notes.
[[nodiscard]] std::string ComparableText(std::string_view abbreviation, std::string_view expansion);

/// Whether the letters of an abbreviation occur in order in its expansion (both UTF-8). Each must
/// come from the beginning of a word, or from the same word as the previous letter. A digit may
/// stand for a number word, for "to" or "for", or repeat the letter beside it (W3C). An x may stand
/// for "ex", "cross", "trans", "extra" or "by", and a last s for a plural. Digits between the first
/// and last letters may stand for as many letters of a word (i18n).
[[nodiscard]] bool HasPlausibleInitials(std::string_view abbreviation, std::string_view expansion);

}  // namespace brelex
