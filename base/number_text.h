// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace brelex {

/// `number` in groups of three digits, "#,##0": 1234567 is "1,234,567" with the separator ",".
/// `separator` is UTF-8 and not empty.
[[nodiscard]] std::string FormatGrouped(std::int32_t number, std::string_view separator);

/// A whole number of any size (not negative, finite; rounded to the nearest), in groups, too. Its
/// first 15 digits are exact, as far as the number is; those behind them are zeros.
[[nodiscard]] std::string FormatGrouped(double number, std::string_view separator);

/// `number` with one decimal behind `decimalSeparator` (UTF-8) and no leading zero, "#.0": 6.1 is
/// "6.1", 0.5 is ".5". Rounds halves of its shortest decimal text up: 1.25 is "1.3". Requires a
/// finite number.
[[nodiscard]] std::string FormatOneDecimal(float number, std::string_view decimalSeparator);

/// `number` as its shortest plain decimal text with `decimalSeparator` (UTF-8) in it: 0.25 is
/// "0.25" and 3 is "3". Requires a finite number.
[[nodiscard]] std::string FormatPlain(float number, std::string_view decimalSeparator);

/// The whole number that `text` states: an optional sign and digits, with blanks around them and
/// `separator` between groups of three allowed. Nothing if it states anything else or a number
/// beyond 32 bits.
[[nodiscard]] std::optional<std::int32_t> ParseWholeNumber(std::string_view text,
                                                           std::string_view separator);

/// Whole percent of `done` in `total` (more than 0), to the nearest, halves to even.
[[nodiscard]] int PercentOf(std::int32_t done, std::int32_t total);

}  // namespace brelex
