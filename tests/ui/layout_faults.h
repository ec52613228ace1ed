// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

class wxTopLevelWindow;

namespace brelex {

/// Finds what a person would see to be wrong with the layout of a visible window: texts that need
/// more room than their control has, controls that reach beyond their container or overlap, a
/// window that reaches beyond its screen, and, in a window other than the main one, controls that
/// are nearer to its edge than the margin of all windows. Returns a line for each; an empty list is
/// the goal. Anything that a person can scroll to counts as shown.
[[nodiscard]] std::vector<std::string> LayoutFaults(wxTopLevelWindow& window);

}  // namespace brelex
