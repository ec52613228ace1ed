// SPDX-License-Identifier: MIT
#pragma once

#include "base/temporary_files.h"

namespace brelex {

/// The temporary folder of the system the program runs on. On Linux that is the first of
/// $XDG_RUNTIME_DIR, which is private to the user, $TMPDIR and /tmp that the user can write into;
/// on Windows what GetTempPath says.
class SystemTemporaryFiles final : public TemporaryFiles {
  public:
    [[nodiscard]] std::string GetTempFolder() const override;
    [[nodiscard]] bool WriteNewFile(const std::string& path, std::string_view bytes) override;
};

}  // namespace brelex
