// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// Has the program start hidden when the user logs on, or no longer. It is the file `programName`
/// (on Windows without its ".exe") in `appFolder`, which ends in the separator; both are UTF-8. On
/// Windows that is the user's registry value named after the product, its data in small letters;
/// elsewhere the file brevilexicon.desktop in the user's autostart folder. Returns whether it could
/// be written or deleted; deleting what is not there fails.
bool SetRunAtStartup(const std::string& appFolder, const std::string& programName, bool enable);

}  // namespace brelex
