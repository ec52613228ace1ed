// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "base/message_sink.h"
#include "base/progress_sink.h"
#include "base/temporary_files.h"
#include "database/program_values.h"
#include "database/record_store.h"
#include "database/szdd.h"

namespace brelex {

/// The name of the temporary file in `TempFolder`.
inline constexpr const char* kTempFileName = "~bx6120.tmp";

/// What loading needs from outside.
struct LoaderSurroundings {
    TemporaryFiles& files;
    ProgressSink& progress;
    MessageSink& messages;
};

/// Loads the database at `values.DatabasePath` into `store` and sets the values that belong to
/// it. The file is expanded into the temporary file, which is deleted once its records are in
/// memory. On failure tells the user why and returns false; the store is then empty.
[[nodiscard]] bool LoadDatabase(ProgramValues& values, RecordStore& store,
                                const LoaderSurroundings& surroundings);

/// Expands the file at `values.DatabasePath` into memory and into the temporary file; `fileLength`
/// is then its own length in bytes. Nothing if it cannot be read or expanded, or the temporary file
/// not be written whole; what was written then stays.
[[nodiscard]] std::optional<ExpandedFile> ExpandIntoTemporaryFile(const ProgramValues& values,
                                                                  TemporaryFiles& files,
                                                                  std::size_t& fileLength);

/// `LoadingTime` between two readings of the clock in seconds since midnight, rounded to two
/// decimals. Negative if midnight lay between them.
[[nodiscard]] float LoadingTimeBetween(float before, float after);

}  // namespace brelex
