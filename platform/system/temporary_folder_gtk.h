// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// The folder for files that the program keeps only while it runs: the first of $XDG_RUNTIME_DIR
/// (which is private to the user), $TMPDIR and /tmp that exists and lets the user create files. A
/// relative path is ignored, because it would mean a different folder at each start. Ends in the
/// separator. Empty if no folder is suitable.
[[nodiscard]] std::string TemporaryFolder();

}  // namespace brelex
