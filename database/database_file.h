// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "base/progress_sink.h"
#include "database/database_header.h"
#include "database/record_store.h"
#include "database/szdd.h"

namespace brelex {

/// Why a database file cannot be used.
enum class LoadFailure {
    None,
    CannotDecode,   ///< it cannot be read or expanded, or expanding did not change its length
    CorruptHeader,  ///< expanded, it has no room for a header and data
    BadHeader       ///< the header contradicts the record block
};

/// What the user is told of a failure; empty for None.
[[nodiscard]] std::string_view ReasonText(LoadFailure failure);

/// Checks what `fileLength` bytes of database file expanded to, and reads the header.
[[nodiscard]] LoadFailure CheckExpandedFile(std::size_t fileLength, std::string_view expanded,
                                            DatabaseHeader& header);

/// Records between two progress reports, so that a load makes about 100 of them at most.
[[nodiscard]] std::int32_t ProgressStepOf(std::int32_t recordCount);

/// Reads a whole database file from memory into `header` and `store`.
[[nodiscard]] LoadFailure ReadDatabase(std::string_view file, DatabaseHeader& header,
                                       RecordStore& store);

}  // namespace brelex
