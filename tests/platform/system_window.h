// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <wx/gdicmn.h>
#include <wx/image.h>

#include "base/message_sink.h"

class wxTextCtrl;
class wxTopLevelWindow;
class wxWindow;

namespace brelex {

/// A top-level window as the system knows it. The toolkit may not know it.
using SystemWindow = void*;

[[nodiscard]] SystemWindow SystemWindowOf(const wxTopLevelWindow& window);

/// The open message box; null if there is none.
[[nodiscard]] SystemWindow OpenMessageBox();

/// The open window with this title; null if there is none.
[[nodiscard]] SystemWindow OpenWindow(const std::string& title);

/// A picture of an area of the screen.
[[nodiscard]] wxImage PictureOfScreen(const wxRect& area);

/// Whether simulated keys arrive in the window. False for null.
[[nodiscard]] bool TakesKeys(SystemWindow window);

/// The window that the given one stays in front of; null if there is none.
[[nodiscard]] SystemWindow OwnerOf(SystemWindow window);

[[nodiscard]] wxRect AreaOf(SystemWindow window);

[[nodiscard]] bool IsInTaskBar(SystemWindow window);
[[nodiscard]] bool StaysAbove(SystemWindow window);
[[nodiscard]] bool CanBeResized(SystemWindow window);

/// The window's icon of `size` pixels, drawn over black; not OK if it has none.
[[nodiscard]] wxImage IconOf(SystemWindow window, int size);

/// The name that a screen reader says for a control.
[[nodiscard]] std::string SpokenNameOf(wxWindow& control);

/// The position of a character in a multi-line box, in pixels from the box's left edge.
[[nodiscard]] int LeftOfCharacter(const wxTextCtrl& box, long row, long column);

// The parts of message boxes.
[[nodiscard]] std::string TitleOfBox(SystemWindow box);
[[nodiscard]] std::string TextOfBox(SystemWindow box);

/// The buttons in their order on the screen, without access key marks.
[[nodiscard]] std::vector<std::string> ButtonsOfBox(SystemWindow box);

/// The place of its icon on the screen; empty if it has none.
[[nodiscard]] wxRect IconAreaOfBox(SystemWindow box);

/// Whether a screen reader hears what kind of box it is. Also true if this system does not require
/// that.
[[nodiscard]] bool TellsItsKind(SystemWindow box, MessageIcon icon);

/// The system's own icon drawn over a color.
[[nodiscard]] wxImage StandardIcon(MessageIcon icon, const wxColour& ground);

/// Removes a box that no key has closed.
void CloseBox(SystemWindow box);

}  // namespace brelex
