// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

class wxTopLevelWindow;

namespace brelex {

/// Finds everything that a visible window does not show completely: texts that need more room than
/// their control has, controls that reach beyond their container, and a window that reaches beyond
/// its screen. Returns a line for each; an empty list is the goal. Anything that a person can
/// scroll to counts as shown.
[[nodiscard]] std::vector<std::string> CutTexts(wxTopLevelWindow& window);

}  // namespace brelex
