// SPDX-License-Identifier: MIT
#pragma once

class wxButton;

namespace brelex {

/// Has a button act at once when it is pressed with a key, its access key or as the default button.
/// GTK shows it pressed for a quarter of a second first.
void ActAtOnceOnKeys(wxButton& button);

}  // namespace brelex
