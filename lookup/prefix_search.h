// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "database/row_list.h"

namespace brelex {

/// The row (0-based) of the first entry that begins with `text` (Windows-1252 bytes up to a NUL),
/// ignoring case, or else with the longest beginning of it that any entry has. 0 if none has any,
/// also for an empty list. Takes a number of steps logarithmic in the rows, and as many again for
/// each byte dropped from the end of the text.
///
/// Relies on rows sorted by CompareTexts. Accents can put rows out of the order of their cut
/// beginnings; such rows may be missed.
[[nodiscard]] std::int32_t FindFirstByPrefix(const RowList& rows, std::string_view text);

}  // namespace brelex
