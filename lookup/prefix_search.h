// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "database/row_list.h"

namespace brelex {

/// The row (0-based) of the first entry that begins with `text` (Windows-1252 bytes up to a NUL),
/// ignoring case. If there is none, the first entry that begins with the longest possible prefix of
/// `text`. 0 if no entry begins with any, or the list is empty. The number of steps is logarithmic
/// in the rows, and the same again for each byte dropped from the end of the text.
///
/// Requires rows sorted by CompareTexts. Because of accents, rows cut to a prefix can be out of
/// order. Such rows may be missed.
[[nodiscard]] std::int32_t FindFirstByPrefix(const RowList& rows, std::string_view text);

}  // namespace brelex
