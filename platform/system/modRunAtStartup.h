// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// Makes the program start hidden when the user logs on, or stops that. The program is the file
/// `programName` (on Windows without its ".exe") in `appFolder`, which ends in the separator; both
/// are UTF-8. On Windows the entry is the user's registry value named after the product, with its
/// data in lowercase. Elsewhere it is the file brevilexicon.desktop in the user's autostart folder;
/// if the user's desktop has switched that entry off, it stays switched off until it is deleted.
/// Returns whether the entry was written or deleted. Deleting an entry that does not exist fails.
bool SetRunAtStartup(const std::string& appFolder, const std::string& programName, bool enable);

}  // namespace brelex
