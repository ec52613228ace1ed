// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <wx/gdicmn.h>
#include <wx/panel.h>
#include <wx/scrolwin.h>

class wxSizer;
class wxTopLevelWindow;

namespace brelex {

/// Fills the inside of a window, holds its controls and draws sunken frames between them. It
/// scrolls where the screen is too small for all of it; a control that gets the focus scrolls into
/// sight.
class Surface final : public wxScrolled<wxPanel> {
  public:
    explicit Surface(wxTopLevelWindow* window);

    /// Gives the window an inside of `size` pixels, or less as far as the screen demands.
    void FillWindow(const wxSize& size);

    /// Frames a child of the surface: one pixel outside it, but `above` pixels at the top. The
    /// frame follows the child, and is there only while the child is shown.
    void FrameChild(const wxWindow& child, int above = 1);

    /// Draws a frame on the boundary of `area`, in pixels from the surface's upper left corner.
    void FrameArea(const wxRect& area);

    void OnDraw(wxDC& dc) override;

  private:
    struct FramedChild {
        const wxWindow* child;
        int above;
    };

    wxTopLevelWindow& window_;
    std::vector<FramedChild> framedChildren_;
    std::vector<wxRect> framedAreas_;
};

/// The size in pixels that the inside of a window can have at most, so that the window with its
/// title, frame and menu bar does not reach beyond the free part of its screen.
[[nodiscard]] wxSize LargestInside(const wxTopLevelWindow& window);

/// Lays `content` out on the surface and gives the surface's window its size, or a width of `width`
/// pixels if that is not 0; less where the screen is too small.
void FillWindow(Surface& surface, wxSizer* content, int width = 0);

}  // namespace brelex
