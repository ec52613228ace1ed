// SPDX-License-Identifier: MIT
#pragma once

#include "base/long_work.h"
#include "base/temporary_files.h"
#include "database/program_values.h"

namespace brelex {

/// Whether the record block of the database file, as it is on disk now, has the CRC of the header
/// that was loaded. The file is expanded into the temporary file again and read from there; what is
/// missing of it counts as zeros, which no records are but for what ends the last one. If `watcher`
/// ends the check, the answer means nothing. The temporary file does not stay.
[[nodiscard]] bool IsDataIntact(const ProgramValues& values, TemporaryFiles& files,
                                WorkWatcher& watcher);

}  // namespace brelex
