// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace brelex {

/// The folder for files that the program keeps only while it runs: the first of $XDG_RUNTIME_DIR
/// (which is private to the user), $TMPDIR and /tmp that exists and lets the user create files. A
/// relative path is ignored, because it would mean a different folder at each start. Ends in the
/// separator. Empty if no folder is suitable.
[[nodiscard]] std::string TemporaryFolder();

/// All of these folders that are suitable, and behind them those that only the user can write to:
/// $XDG_CACHE_HOME, ~/.cache and the home.
[[nodiscard]] std::vector<std::string> TemporaryFolders();

}  // namespace brelex
