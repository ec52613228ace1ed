// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "database/row_list.h"

namespace brelex {

/// Returns the row (0-based) of the first entry that begins with `text` (Windows-1252 bytes up to a
/// NUL), ignoring case. If there is none, returns the first entry that begins with the longest
/// possible prefix of `text`. Returns 0 if no entry begins with any prefix, or if the list is
/// empty. The number of steps is logarithmic in the number of rows, and the same again for each
/// byte dropped from the end of the text.
///
/// Requires rows sorted by CompareTexts. Accents can put rows out of order once they are cut to a
/// prefix. Such rows may be missed. The number of steps can then be that of the rows.
///
/// Adds the number of steps to `steps`, unless that is null.
[[nodiscard]] std::int32_t FindFirstByPrefix(const RowList& rows, std::string_view text,
                                             std::int64_t* steps = nullptr);

}  // namespace brelex
