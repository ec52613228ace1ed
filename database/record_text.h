// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace brelex {

/// The abbreviation of a record: its text before the first TAB; empty if the record has no TAB.
[[nodiscard]] std::string_view GetAbbreviation(std::string_view recordText);

/// The expansion of a record: its text after the first TAB, further TABs included; the whole
/// record if it has no TAB.
[[nodiscard]] std::string_view GetExpansion(std::string_view recordText);

}  // namespace brelex
