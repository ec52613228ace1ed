// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "database/row_list.h"

namespace brelex {

/// How many entries the search of the desktop shows.
inline constexpr std::size_t kMostAnswers = 5;

/// No longer text is looked up, in bytes of Windows-1252. Abbreviations are far shorter.
inline constexpr std::size_t kLongestQuestion = 256;

/// The rows (0-based) of the entries that answer what the user typed into the search of the
/// desktop (UTF-8): first those with exactly that abbreviation, then those whose abbreviation
/// begins with it, both ignoring case and in the order of the rows. Blanks at the ends of the text
/// do not count, and an entry that occurs twice is one. There are no more than kMostAnswers, and
/// none for a text that is empty or too long, or that has control characters or characters outside
/// Windows-1252.
///
/// Like FindFirstByPrefix, requires rows sorted by CompareTexts.
[[nodiscard]] std::vector<std::int32_t> AnswersTo(const RowList& rows, std::string_view typed);

/// What other programs call an entry: its record text in UTF-8. Unlike a row, this still means the
/// same entry when the database has changed.
[[nodiscard]] std::string AnswerId(std::string_view record);

/// The row of the entry that other programs call `id`, which may be any text. Nothing if there is
/// no such entry.
[[nodiscard]] std::optional<std::int32_t> RowOfAnswer(const RowList& rows, std::string_view id);

/// The row to select for the entry that other programs call `id`. If there is no such entry, or if
/// `id` is what the user typed, the row that typing its abbreviation would select. 0 if there are
/// no rows.
[[nodiscard]] std::int32_t RowToShow(const RowList& rows, std::string_view id);

}  // namespace brelex
