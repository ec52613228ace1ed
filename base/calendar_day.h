// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace brelex {

/// The calendar day of a day count (days since 30 December 1899; the fraction is the time of day,
/// also of a negative count, as in the date type of Windows' automation: -1.25 is six o'clock on 29
/// December 1899). Nothing for a count outside the years 100 to 9999 and for
/// one that is no number.
[[nodiscard]] std::optional<std::chrono::year_month_day> DayOfCount(double count);

/// The day count of a calendar day.
[[nodiscard]] double CountOfDay(std::chrono::year_month_day day);

/// A day as YYYY-MM-DD.
[[nodiscard]] std::string FormatIsoDay(std::chrono::year_month_day day);

/// A day as "3 Feb 2005", in English.
[[nodiscard]] std::string FormatShortDay(std::chrono::year_month_day day);

/// Reads YYYY-MM-DD; nothing if `text` has another form or names a day that does not exist.
[[nodiscard]] std::optional<std::chrono::year_month_day> ParseIsoDay(std::string_view text);

}  // namespace brelex
