// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "database/database_header.h"
#include "database/record_store.h"

namespace brelex {

/// Finds the row (0-based) that typing a text would select.
using PrefixFinder = std::function<std::int32_t(const RowList& rows, std::string_view text)>;

/// What is wrong with a loaded database, a line (UTF-8) for each finding: the CRC, NULs against the
/// record count, records without TAB, the order, the header's statistics, and beginnings of
/// abbreviations that `find` does not find. At most ten lines of one kind.
[[nodiscard]] std::vector<std::string> CheckDatabase(const DatabaseHeader& header,
                                                     const RecordStore& store,
                                                     const PrefixFinder& find);

}  // namespace brelex
