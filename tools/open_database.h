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

/// A database that a command works on.
struct OpenDatabase {
    DatabaseHeader header;
    RecordStore store;
};

/// Loads the database at `path` (UTF-8). If that fails it says why on `err` and returns kFailed, or
/// `unloadable` for a file that was read but cannot be used; else kFound.
[[nodiscard]] int Load(const std::string& path, OpenDatabase& database, std::ostream& err,
                       int unloadable = kFailed);

}  // namespace brelex
