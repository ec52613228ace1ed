// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "base/long_work.h"
#include "base/message_sink.h"
#include "base/temporary_files.h"
#include "database/database_file.h"
#include "database/program_values.h"
#include "database/record_store.h"

namespace brelex {

/// The name of the temporary file in `TempFolder`.
inline constexpr const char* kTempFileName = "~bx6120.tmp";

/// What the loader needs from the outside.
struct LoaderSurroundings {
    TemporaryFiles& files;
    WorkWatcher& progress;
    MessageSink& messages;
};

/// Loads the database at `values.DatabasePath` into `store` and sets the values that belong to it.
/// On failure, tells the user why and returns false. The store is then empty.
///
/// The expanded file is also written to the temporary file, which is deleted as soon as the header
/// is accepted. The loader never reads it: the records come from memory. But a database whose
/// temporary file cannot be written is refused, and that of a refused database stays.
[[nodiscard]] bool LoadDatabase(ProgramValues& values, RecordStore& store,
                                const LoaderSurroundings& surroundings);

/// Expands the file at `values.DatabasePath` both into memory and into the temporary file. Nothing
/// if it cannot be read or expanded, or if the temporary file cannot be written completely. What
/// was written then stays.
[[nodiscard]] std::optional<ExpandedDatabase> ExpandIntoTemporaryFile(const ProgramValues& values,
                                                                      TemporaryFiles& files);

/// The `LoadingTime` between two readings of the clock in seconds since midnight, rounded to two
/// decimals. Negative if midnight was in between.
[[nodiscard]] float LoadingTimeBetween(float before, float after);

}  // namespace brelex
