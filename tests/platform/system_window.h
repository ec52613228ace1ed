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

/// A top-level window as the system knows it: also one that the toolkit knows nothing of.
using SystemWindow = void*;

[[nodiscard]] SystemWindow SystemWindowOf(const wxTopLevelWindow& window);

/// The message box that is up; null if there is none.
[[nodiscard]] SystemWindow OpenMessageBox();

/// The window that is up with a title; null if there is none.
[[nodiscard]] SystemWindow OpenWindow(const std::string& title);

/// What is on the screen in an area.
[[nodiscard]] wxImage PictureOfScreen(const wxRect& area);

/// Whether simulated keys arrive in it. Not in null.
[[nodiscard]] bool TakesKeys(SystemWindow window);

/// The window that it stays in front of; null if there is none.
[[nodiscard]] SystemWindow OwnerOf(SystemWindow window);

[[nodiscard]] wxRect AreaOf(SystemWindow window);

[[nodiscard]] bool IsInTaskBar(SystemWindow window);
[[nodiscard]] bool StaysAbove(SystemWindow window);
[[nodiscard]] bool CanBeResized(SystemWindow window);

/// Its icon of `size` pixels, over black; not OK if it has none.
[[nodiscard]] wxImage IconOf(SystemWindow window, int size);

/// The name that a screen reader gives to a control.
[[nodiscard]] std::string SpokenNameOf(wxWindow& control);

/// Where a character of a multi-line box is, from its left edge.
[[nodiscard]] int LeftOfCharacter(const wxTextCtrl& box, long row, long column);

// What message boxes are made of.
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
