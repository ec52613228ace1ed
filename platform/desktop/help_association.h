// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// Has the help files of this user opened with a program (UTF-8 path), or, with an empty path, with
/// what it was before. Returns false if that fails.
[[nodiscard]] bool OpenHelpFilesWith(const std::string& program);

}  // namespace brelex
