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

/// What is wrong with a loaded database, a line (UTF-8) for each finding. Checks the CRC, the
/// number of NULs against the record count, the TABs and the order of the records, the header's
/// statistics, and that `find` finds every abbreviation by each of its prefixes of up to 100 bytes.
/// At most ten lines of a kind.
[[nodiscard]] std::vector<std::string> CheckDatabase(const DatabaseHeader& header,
                                                     const RecordStore& store,
                                                     const PrefixFinder& find);

}  // namespace brelex
