// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "database/database_header.h"
#include "database/record_store.h"

namespace brelex {

/// Finds the row (0-based) that typing a text would select. Adds the number of its steps to
/// `steps`.
using PrefixFinder =
    std::function<std::int32_t(const RowList& rows, std::string_view text, std::int64_t* steps)>;

/// What is wrong with a loaded database, a line (UTF-8) for each finding. Checks the CRC, the
/// number of NULs against the record count, the TABs, the order and the characters of the records,
/// the header's statistics, and that `find` finds every abbreviation by each of its prefixes of up
/// to 100 bytes. At most ten lines of a kind. The time is linear in the size of the database: if
/// records in a bad order make `find` take too many steps, says so and leaves out the rest.
[[nodiscard]] std::vector<std::string> CheckDatabase(const DatabaseHeader& header,
                                                     const RecordStore& store,
                                                     const PrefixFinder& find);

}  // namespace brelex
