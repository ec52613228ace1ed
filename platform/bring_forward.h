// SPDX-License-Identifier: MIT
#pragma once

class wxFrame;

namespace brelex {

/// Shows a window, whether it is hidden, minimised or covered, in front of the others and gives it
/// the keyboard.
void BringForward(wxFrame& window);

}  // namespace brelex
