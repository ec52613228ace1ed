// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// Makes a program (UTF-8 path) open the help files of this user, or, with an empty path, the
/// program that did so before. Returns false if that fails.
[[nodiscard]] bool OpenHelpFilesWith(const std::string& program);

}  // namespace brelex
