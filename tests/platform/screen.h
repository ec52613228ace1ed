// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <wx/gdicmn.h>
#include <wx/image.h>

class wxTopLevelWindow;
class wxWindow;

namespace brelex {

class EntryListControl;

// What the system itself says of windows: its answers, not the toolkit's memory of what it asked.

/// Where a window stands on the screen with the frame that the desktop has put round it.
[[nodiscard]] wxRect FrameOnScreen(const wxTopLevelWindow& window);

/// The size of the screen in the pixels of FrameOnScreen.
[[nodiscard]] wxSize ScreenSize();

/// Whether the desktop keeps a window above the usual ones.
[[nodiscard]] bool IsKeptAbove(const wxTopLevelWindow& window);

/// Where the pop-up menu that is open stands on the screen; empty if there is none.
[[nodiscard]] wxRect MenuOnScreen();

/// What the screen shows of a window that nothing covers.
[[nodiscard]] wxImage PictureOnScreen(wxWindow& window);

struct ToolTipView {
    std::string text;  ///< UTF-8; empty if none is shown
    wxRect place;      ///< on the screen
};

/// The tool tip that is shown.
[[nodiscard]] ToolTipView ToolTipOnScreen();

/// What the control of a list shows, in pixels.
struct ListView {
    int rowHeight;
    int height;      ///< of the inside
    int firstRowAt;  ///< where the first row of all begins, above 0 if it is scrolled out of sight
};

[[nodiscard]] ListView ViewOf(EntryListControl& list);

}  // namespace brelex
