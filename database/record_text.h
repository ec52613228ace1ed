// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace brelex {

/// The abbreviation of a record: its text before the first TAB; empty if the record has no TAB.
[[nodiscard]] std::string_view GetAbbreviation(std::string_view recordText);

/// The expansion of a record: its text after the first TAB, further TABs included; the whole
/// record if it has no TAB.
[[nodiscard]] std::string_view GetExpansion(std::string_view recordText);

/// How many characters of a text (Windows-1252 bytes) are no blanks: its "letters", as the user is
/// told.
[[nodiscard]] std::size_t LetterCount(std::string_view text);

/// What a list of two columns shows of a record in each (0 and 1): abbreviation and expansion; of a
/// record without TAB the whole text in the first.
[[nodiscard]] std::string_view ColumnText(std::string_view recordText, int column);

}  // namespace brelex
