// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

class wxTopLevelWindow;

namespace brelex {

/// What a window that is shown does not show whole: texts that need more room than their control
/// has, controls that reach beyond what holds them, and a window that reaches beyond its screen.
/// Each is described in a line; none is best. What a person can scroll to counts as shown.
[[nodiscard]] std::vector<std::string> CutTexts(wxTopLevelWindow& window);

}  // namespace brelex
