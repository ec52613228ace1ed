// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// Has the program in `appFolder` (UTF-8, ending in the separator) start hidden when the user logs
/// on, or no longer. On Windows that is the user's registry value named after the program, its data
/// in small letters; elsewhere the file brevilexicon.desktop in the user's autostart folder.
/// Returns whether it could be written or deleted; deleting what is not there fails.
bool SetRunAtStartup(const std::string& appFolder, bool enable);

}  // namespace brelex
