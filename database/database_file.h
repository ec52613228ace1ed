// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "base/long_work.h"
#include "database/compressed_file.h"
#include "database/database_header.h"
#include "database/record_store.h"

namespace brelex {

/// Why a database file cannot be used.
enum class LoadFailure {
    None,
    CannotDecode,   ///< it cannot be read or expanded, or expanding did not change its length
    CorruptHeader,  ///< the expanded file is too short for a header and data
    BadHeader       ///< the header contradicts the record block
};

/// What the user is told about a failure. Empty for None.
[[nodiscard]] std::string_view ReasonText(LoadFailure failure);

/// What a database file expands to: its header, then its record block. Not checked yet.
struct ExpandedDatabase {
    ExpandedFile content;
    std::size_t fileLength;  ///< bytes of the database file itself
};

/// Expands a whole database file. Nothing if it cannot be expanded.
[[nodiscard]] std::optional<ExpandedDatabase> ExpandDatabase(CompressedFile file);

/// The number of records between two progress reports. With it, a load makes about 100 reports at
/// most.
[[nodiscard]] std::int32_t ProgressStepOf(std::int32_t recordCount);

/// Checks an expanded database, then reads it into `header` and `store`, and reports the progress
/// of the latter. Calls `onHeader` in between: the header is accepted and the store still to be
/// filled. If that fails, an empty store stays empty.
[[nodiscard]] LoadFailure ReadExpandedDatabase(ExpandedDatabase database, DatabaseHeader& header,
                                               RecordStore& store, WorkWatcher& progress,
                                               const std::function<void()>& onHeader);

/// Expands a whole database file and reads it into `header` and `store`.
[[nodiscard]] LoadFailure ReadDatabase(CompressedFile file, DatabaseHeader& header,
                                       RecordStore& store);

/// The same for the content of a file.
[[nodiscard]] LoadFailure ReadDatabase(std::string_view file, DatabaseHeader& header,
                                       RecordStore& store);

}  // namespace brelex
