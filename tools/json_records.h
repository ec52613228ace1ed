// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <ostream>
#include <vector>

#include "database/row_list.h"

namespace brelex {

/// Prints records as an array of JSON, one on each line, with "recordNumber" (1-based),
/// "abbreviation" and "expansion".
void PrintJsonRecords(const RowList& rows, const std::vector<std::int32_t>& hits,
                      std::ostream& out);

}  // namespace brelex
