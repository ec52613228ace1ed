// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <ostream>
#include <vector>

#include "database/row_list.h"

namespace brelex {

/// Prints records as a JSON array of objects, one on each line, with the members "recordNumber"
/// (1-based), "abbreviation" and "expansion".
void PrintJsonRecords(const RowList& rows, const std::vector<std::int32_t>& hits,
                      std::ostream& out);

}  // namespace brelex
