// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <ostream>
#include <string_view>
#include <vector>

#include "database/row_list.h"
#include "platform/system/terminal.h"

namespace brelex {

/// How a command prints records.
struct OutputOptions {
    bool json = false;        ///< as PrintJsonRecords does, wherever the output goes
    bool numbers = false;     ///< with the number of each record (1-based) in front
    OutputTerminal terminal;  ///< where the output goes
};

/// Returns the part of a record (Windows-1252 bytes) that is to be shown in bold on a terminal.
using MatchOf = std::function<std::string_view(std::string_view recordText)>;

/// Prints these rows (0-based), one record on a line of UTF-8 text. A file or pipe gets the record
/// as it is. On a terminal, the abbreviations and the expansions are columns of their own, and an
/// expansion that is too long goes on below its beginning. Control characters are made visible
/// there.
void PrintRecords(const RowList& rows, const std::vector<std::int32_t>& hits,
                  const OutputOptions& options, const MatchOf& match, std::ostream& out);

}  // namespace brelex
