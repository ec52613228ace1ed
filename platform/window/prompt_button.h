// SPDX-License-Identifier: MIT
#pragma once

class wxButton;

namespace brelex {

/// Makes a button act at once when a key presses it: its access key, or Enter for the default
/// button. Without this, GTK would first show it pressed for a quarter of a second.
void ActAtOnceOnKeys(wxButton& button);

}  // namespace brelex
