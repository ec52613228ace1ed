// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace brelex {

/// The calendar day of a day count: the number of days since 30 December 1899. The fraction is the
/// time of day, even in a negative count, as in the date type of Windows automation: -1.25 is six
/// o'clock on 29 December 1899. Nothing for a count that is not a number or is outside the years
/// 100 to 9999.
[[nodiscard]] std::optional<std::chrono::year_month_day> DayOfCount(double count);

/// The day count of a calendar day. Like the formats below, requires a day that exists.
[[nodiscard]] double CountOfDay(std::chrono::year_month_day day);

/// A day as YYYY-MM-DD.
[[nodiscard]] std::string FormatIsoDay(std::chrono::year_month_day day);

/// A day as "3 Feb 2005", in English.
[[nodiscard]] std::string FormatShortDay(std::chrono::year_month_day day);

/// Reads YYYY-MM-DD. Nothing if `text` has any other form or names a day that does not exist.
[[nodiscard]] std::optional<std::chrono::year_month_day> ParseIsoDay(std::string_view text);

}  // namespace brelex
