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

/// The whole number that `text` states: an optional sign and digits, with blanks around them and
/// `separator` between groups of three allowed. Nothing if it states anything else or a number
/// beyond 32 bits.
[[nodiscard]] std::optional<std::int32_t> ParseWholeNumber(std::string_view text,
                                                           std::string_view separator);

}  // namespace brelex
