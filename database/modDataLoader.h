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
/// temporary file cannot be written in any folder is refused, and that of a refused database stays.
[[nodiscard]] bool LoadDatabase(ProgramValues& values, RecordStore& store,
                                const LoaderSurroundings& surroundings);

/// What a database file expands to, and the temporary file that has it, too.
struct ExpandedIntoFile {
    ExpandedDatabase database;
    std::string folder;  ///< of the temporary file; ends in the separator
};

/// Expands the file at `databasePath` both into memory and into the temporary file. That is
/// in `firstFolder`, or if it cannot be written there, in another folder. Nothing if it cannot be
/// read or expanded, or if no temporary file can be written completely. What was written then
/// stays.
[[nodiscard]] std::optional<ExpandedIntoFile> ExpandIntoTemporaryFile(
    const std::string& databasePath, const std::string& firstFolder, TemporaryFiles& files);

/// The `LoadingTime` between two readings of the clock in seconds since midnight, rounded to two
/// decimals. Negative if midnight was in between.
[[nodiscard]] float LoadingTimeBetween(float before, float after);

}  // namespace brelex
