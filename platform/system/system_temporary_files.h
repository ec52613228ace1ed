// SPDX-License-Identifier: MIT
#pragma once

#include "base/temporary_files.h"

namespace brelex {

/// The temporary folder of the system the program runs on. On Linux it is the first of
/// $XDG_RUNTIME_DIR (which is private to the user), $TMPDIR and /tmp in which the user can create
/// files; after these come the user's own folders, $XDG_CACHE_HOME or ~/.cache and the home. On
/// Windows it is the folder that GetTempPath returns, which is the user's own.
class SystemTemporaryFiles final : public TemporaryFiles {
  public:
    [[nodiscard]] std::string GetTempFolder() const override;
    [[nodiscard]] std::vector<std::string> OtherFolders() const override;
    [[nodiscard]] bool WriteNewFile(const std::string& path, std::string_view bytes) override;
};

}  // namespace brelex
