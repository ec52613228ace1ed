// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// The folder for what the program keeps only while it runs: the first of $XDG_RUNTIME_DIR, which
/// is private to the user, $TMPDIR and /tmp that is there and lets the user make files. A relative
/// path counts as none, as it would name another folder for each start. Ends in the separator;
/// empty if no folder will do.
[[nodiscard]] std::string TemporaryFolder();

}  // namespace brelex
