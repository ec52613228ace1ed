// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// Makes a program (UTF-8 path) open this user's help files. With an empty path, restores the
/// program that did so before. Returns false if that fails.
[[nodiscard]] bool OpenHelpFilesWith(const std::string& program);

}  // namespace brelex
