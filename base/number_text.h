// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace brelex {

/// `number` in groups of three digits, "#,##0": 1234567 is "1,234,567" with the separator ",".
/// Requires a separator (UTF-8) that is not empty.
[[nodiscard]] std::string FormatGrouped(std::int32_t number, std::string_view separator);

/// The same for a whole number of any size, rounded to the nearest. Its first 15 digits are exact,
/// as far as the number is; the others are zeros. Requires a finite number that is not negative.
[[nodiscard]] std::string FormatGrouped(double number, std::string_view separator);

/// `number` with one decimal after `decimalSeparator` (UTF-8) and no leading zero, "#.0": 6.1 is
/// "6.1", 0.5 is ".5". Rounds halves of the shortest decimal text up: 1.25 is "1.3". A number that
/// is not finite is "inf" or "nan".
[[nodiscard]] std::string FormatOneDecimal(float number, std::string_view decimalSeparator);

/// `number` as its shortest plain decimal text with `decimalSeparator` (UTF-8): 0.25 is "0.25" and
/// 3 is "3". Requires a finite number.
[[nodiscard]] std::string FormatPlain(float number, std::string_view decimalSeparator);

/// Reads a whole number: an optional sign and digits. Blanks around them are allowed, and so is
/// `separator` between groups of three. Nothing for any other text or a number beyond 32 bits.
[[nodiscard]] std::optional<std::int32_t> ParseWholeNumber(std::string_view text,
                                                           std::string_view separator);

/// Whole percent of `done` in `total` (more than 0): done / total * 100 in double precision, to the
/// nearest, halves to even. All progress is worked out here.
[[nodiscard]] int PercentOf(std::int32_t done, std::int32_t total);

}  // namespace brelex
