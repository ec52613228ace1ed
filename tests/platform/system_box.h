// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <wx/gdicmn.h>
#include <wx/image.h>

#include "base/message_sink.h"
#include "tests/platform/screen.h"

namespace brelex {

// What the message boxes of the system are made of.

/// The message box that is up; null if there is none.
[[nodiscard]] SystemWindow OpenMessageBox();

[[nodiscard]] std::string TitleOfBox(SystemWindow box);
[[nodiscard]] std::string TextOfBox(SystemWindow box);

/// In the order of the screen, without marks of access keys.
[[nodiscard]] std::vector<std::string> ButtonsOfBox(SystemWindow box);

/// Where on the screen its icon is; empty if it has none.
[[nodiscard]] wxRect IconAreaOfBox(SystemWindow box);

/// Whether a screen reader hears what kind of box it is, or needs not to on this system.
[[nodiscard]] bool TellsItsKind(SystemWindow box, MessageIcon icon);

/// The system's own icon over a color.
[[nodiscard]] wxImage StandardIcon(MessageIcon icon, const wxColour& ground);

/// Takes a box away that no key has closed.
void CloseBox(SystemWindow box);

}  // namespace brelex
