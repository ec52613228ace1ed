// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brelex {

/// An expansion (UTF-8) without the notes in parentheses at its end.
[[nodiscard]] std::string_view WithoutNotes(std::string_view expansion);

/// Whether each parenthesis and bracket that is opened is closed by its like, and the other way
/// round.
[[nodiscard]] bool HasBalancedBrackets(std::string_view text);

/// The items of the notes at the end of an expansion, which commas and blanks separate.
[[nodiscard]] std::vector<std::string_view> NoteItems(std::string_view expansion);

/// The first word within an expansion that title case writes in small letters, such as "Of", but
/// that has a capital. Empty if there is none. The last word, and the first one of each part behind
/// a colon or comma, may have a capital.
[[nodiscard]] std::string_view SmallWordInCapitals(std::string_view expansion);

/// Reduces an entry (UTF-8) to what counts when two entries are compared: letters, digits, "+" and
/// "#" of both parts. Ignores case, accents and notes, and in the expansion also small words such
/// as "of" and "&", plurals, and the difference between American and British spelling.
[[nodiscard]] std::string ComparableText(std::string_view abbreviation, std::string_view expansion);

/// Whether the letters of an abbreviation occur in order in its expansion (both UTF-8). Each must
/// come from the beginning of a word, or from the same word as the previous letter. A digit may
/// stand for a number word, for "to" or "for", or repeat the letter beside it (W3C). An x may stand
/// for "ex", "cross", "trans", "extra" or "by", and a last s for a plural. Digits between the first
/// and last letters may stand for as many letters of a word (i18n).
[[nodiscard]] bool HasPlausibleInitials(std::string_view abbreviation, std::string_view expansion);

}  // namespace brelex
