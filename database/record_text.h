// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace brelex {

/// The abbreviation of a record: its text before the first TAB. Empty if there is no TAB.
[[nodiscard]] std::string_view GetAbbreviation(std::string_view recordText);

/// The expansion of a record: its text after the first TAB, including further TABs. The whole
/// record if there is no TAB.
[[nodiscard]] std::string_view GetExpansion(std::string_view recordText);

/// A record in the form in which it is copied: "RAM = Random Access Memory".
[[nodiscard]] std::string CopiedText(std::string_view recordText);

/// The number of characters in a text (Windows-1252 bytes) that are not blanks. The user is told
/// that they are its "letters".
[[nodiscard]] std::size_t LetterCount(std::string_view text);

/// What a list shows of a record in column 0 or 1: the abbreviation and the expansion. Without a
/// TAB, the first column has the whole text and the second is empty.
[[nodiscard]] std::string_view ColumnText(std::string_view recordText, int column);

}  // namespace brelex
