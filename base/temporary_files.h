// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "base/interface.h"

namespace brelex {

/// The temporary folder and how a file is made in it. Paths are UTF-8.
class TemporaryFiles : public Interface {
  public:
    /// The user's temporary folder, ending in the separator, as the system names it; it need not
    /// exist. Empty if the system names none.
    [[nodiscard]] virtual std::string GetTempFolder() const = 0;

    /// Makes a new file that only this user can read and writes `bytes` to it. Whatever had that
    /// name is removed first, a link itself and not what it points to. Returns false if the file
    /// could not be made or not be written whole; what was written then stays.
    [[nodiscard]] virtual bool WriteNewFile(const std::string& path, std::string_view bytes) = 0;
};

}  // namespace brelex
