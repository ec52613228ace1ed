// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>

#include "database/database_header.h"
#include "database/record_store.h"

namespace brelex {

// The exit codes of all commands.
inline constexpr int kFound = 0;
inline constexpr int kNothingFound = 1;
inline constexpr int kFailed = 2;

/// The database that a command reads.
struct OpenDatabase {
    DatabaseHeader header;
    RecordStore store;
};

/// Loads the database at `path` (UTF-8). Returns kFound on success. On failure, writes the reason
/// to `err` and returns kFailed, or `unloadable` if the file was read but cannot be used.
[[nodiscard]] int Load(const std::string& path, OpenDatabase& database, std::ostream& err,
                       int unloadable = kFailed);

}  // namespace brelex
