// SPDX-License-Identifier: MIT
#pragma once

#include <wx/panel.h>
#include <wx/scrolwin.h>

class wxSizer;
class wxTopLevelWindow;

namespace brelex {

/// What fills the inside of a window and holds its controls. Where the screen is too small for all
/// of it, it scrolls; a control that gets the focus scrolls into sight.
class Surface final : public wxScrolled<wxPanel> {
  public:
    explicit Surface(wxTopLevelWindow* window);

    /// Gives the window an inside of `size` pixels, or less as far as the screen demands.
    void FillWindow(const wxSize& size);

  private:
    wxTopLevelWindow& window_;
};

/// The size in pixels that the inside of a window can have at most, so that the window with its
/// title, frame and menu bar does not reach beyond the free part of its screen.
[[nodiscard]] wxSize LargestInside(const wxTopLevelWindow& window);

/// Lays `content` out on the surface and gives the surface's window the size of it, or `width`
/// pixels across if that is not 0; less where the screen is too small.
void FillWindow(Surface& surface, wxSizer* content, int width = 0);

}  // namespace brelex
