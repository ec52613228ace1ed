// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// Has help files of this user opened with a program (UTF-8 path); with an empty path takes that
/// back. On Linux desktop entries do this, and nothing happens here.
void OpenHelpFilesWith(const std::string& program);

}  // namespace brelex
