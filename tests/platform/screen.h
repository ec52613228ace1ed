// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <wx/gdicmn.h>
#include <wx/image.h>

class wxTextCtrl;
class wxTopLevelWindow;
class wxWindow;

namespace brelex {

class EntryListControl;

// These ask the system itself about windows. The toolkit only remembers what it requested.

/// A top-level window as the system knows it: also one that the toolkit knows nothing of.
using SystemWindow = void*;

[[nodiscard]] SystemWindow SystemWindowOf(const wxTopLevelWindow& window);

/// The window that is up with a title; null if there is none.
[[nodiscard]] SystemWindow OpenWindow(const std::string& title);

/// Whether simulated keys arrive in it. Not in null.
[[nodiscard]] bool TakesKeys(SystemWindow window);

/// The window that it stays in front of; null if there is none.
[[nodiscard]] SystemWindow OwnerOf(SystemWindow window);

[[nodiscard]] wxRect AreaOf(SystemWindow window);

[[nodiscard]] bool IsInTaskBar(SystemWindow window);
[[nodiscard]] bool CanBeResized(SystemWindow window);

/// Whether the desktop keeps a window above the usual ones.
[[nodiscard]] bool IsKeptAbove(SystemWindow window);
[[nodiscard]] bool IsKeptAbove(const wxTopLevelWindow& window);

/// Its icon of `size` pixels, over black; not OK if it has none.
[[nodiscard]] wxImage IconOf(SystemWindow window, int size);

/// Whether the desktop shows a window: neither hidden nor minimized, nor on the way there.
[[nodiscard]] bool IsOnScreen(const wxTopLevelWindow& window);

/// Where a window stands on the screen with the frame that the desktop has put round it.
[[nodiscard]] wxRect FrameOnScreen(const wxTopLevelWindow& window);

/// The size of the screen in the pixels of FrameOnScreen.
[[nodiscard]] wxSize ScreenSize();

/// What is on the screen in an area, in all the pixels that the screen has for it.
[[nodiscard]] wxImage PictureOfScreen(const wxRect& area);

/// Whether the notification area in the upper left corner of the screen shows an icon.
[[nodiscard]] bool ShowsTrayIcon();

/// The place of the open pop-up menu on the screen; empty if there is none.
[[nodiscard]] wxRect MenuOnScreen();

struct ToolTipView {
    std::string text;  ///< UTF-8; empty if none is shown
    wxRect place;      ///< on the screen
};

/// The tooltip on the screen.
[[nodiscard]] ToolTipView ToolTipOnScreen();

/// What the control of a list shows, in pixels.
struct ListView {
    int rowHeight;
    int height;      ///< of the inside
    int firstRowAt;  ///< where the very first row begins; negative if it is scrolled out of view
};

[[nodiscard]] ListView ViewOf(EntryListControl& list);

/// The name that a screen reader gives to a control.
[[nodiscard]] std::string SpokenNameOf(wxWindow& control);

/// Where a character of a multi-line box is, from its left edge.
[[nodiscard]] int LeftOfCharacter(const wxTextCtrl& box, long row, long column);

}  // namespace brelex
