// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/interface.h"

namespace brelex {

/// Knows the temporary folder and writes files in it. Paths are UTF-8.
class TemporaryFiles : public Interface {
  public:
    /// The user's temporary folder according to the system, ending in the separator. It need not
    /// exist. Empty if the system names none.
    [[nodiscard]] virtual std::string GetTempFolder() const = 0;

    /// The folders to try, in this order, when the temporary folder does not take the file: another
    /// user may have put something there that cannot be removed. Each ends in the separator.
    [[nodiscard]] virtual std::vector<std::string> OtherFolders() const { return {}; }

    /// Creates a file that only this user can read, and writes `bytes` to it. First removes
    /// whatever has that name; of a link, the link itself. Returns false if the file cannot be
    /// created or not written completely. What was written then stays.
    [[nodiscard]] virtual bool WriteNewFile(const std::string& path, std::string_view bytes) = 0;
};

}  // namespace brelex
