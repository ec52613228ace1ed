// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include <wx/gdicmn.h>
#include <wx/image.h>

class wxTopLevelWindow;
class wxWindow;

namespace brelex {

class EntryListControl;

// These ask the system itself about windows. The toolkit only remembers what it requested.

/// The place of a window on the screen, including the frame that the desktop has put around it.
[[nodiscard]] wxRect FrameOnScreen(const wxTopLevelWindow& window);

/// The size of the screen in the pixels of FrameOnScreen.
[[nodiscard]] wxSize ScreenSize();

/// Whether the desktop keeps a window above normal ones.
[[nodiscard]] bool IsKeptAbove(const wxTopLevelWindow& window);

/// The place of the open pop-up menu on the screen; empty if there is none.
[[nodiscard]] wxRect MenuOnScreen();

/// What the screen shows of a window. Nothing may cover the window.
[[nodiscard]] wxImage PictureOnScreen(wxWindow& window);

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

}  // namespace brelex
