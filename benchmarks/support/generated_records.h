// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "database/record_store.h"

namespace brelex {

/// Returns the bytes of a database file with `count` generated entries. They resemble real ones in
/// the lengths of their parts and in how often abbreviations repeat. The same count always produces
/// the same file.
[[nodiscard]] std::string GeneratedDatabase(std::int64_t count);

/// Returns the entries of such a file, loaded once for all benchmarks.
[[nodiscard]] const RecordStore& GeneratedStore(std::int64_t count);

}  // namespace brelex
