// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "base/folder_picker.h"
#include "base/message_sink.h"
#include "database/program_values.h"

namespace brelex {

/// The name of the database file.
inline constexpr const char* kDatabaseName = "Acronyms.dat";

/// The path of the database file in `folder`, as FindFileIgnoringCase finds it.
[[nodiscard]] std::optional<std::string> FindDatabaseIn(const std::string& folder);

/// Sets `values.AppFolder` (from `programFolder`) and `values.DatabasePath`. If the file is not in
/// the program's folder, asks the user where it is, until it is found. Returns false if the user
/// gives up.
[[nodiscard]] bool LocateDatabase(ProgramValues& values, const std::string& programFolder,
                                  FolderPicker& picker, MessageSink& messages);

}  // namespace brelex
