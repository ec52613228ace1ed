// SPDX-License-Identifier: MIT
#pragma once

#include "database/temporary_files.h"

namespace brelex {

/// The temporary folder of the system the program runs on. On Linux that is $XDG_RUNTIME_DIR,
/// which is private to the user, or else $TMPDIR, or else /tmp; on Windows what GetTempPath says.
class SystemTemporaryFiles final : public TemporaryFiles {
  public:
    [[nodiscard]] std::string GetTempFolder() const override;
    [[nodiscard]] bool WriteNewFile(const std::string& path, std::string_view bytes) override;
};

}  // namespace brelex
