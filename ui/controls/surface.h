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
/// scrolls if the screen is too small for all of it, and lays them out again if the user makes the
/// window larger. A control that gets the focus scrolls into view.
class Surface final : public wxScrolled<wxPanel> {
  public:
    explicit Surface(wxTopLevelWindow* window);

    /// Gives the window an inside of `size` pixels, or less if the screen requires it.
    void FillWindow(const wxSize& size);

    /// Draws a frame around a child of the surface: one pixel outside it, but `above` pixels at the
    /// top. The frame follows the child and appears only while the child is shown.
    void FrameChild(const wxWindow& child, int above = 1);

    /// Draws a frame on the boundary of `area`, in pixels from the surface's upper left corner.
    void FrameArea(const wxRect& area);

    /// Forgets the frames of areas, which are to be set again.
    void ForgetAreas() { framedAreas_.clear(); }

    /// Gives the window the size that the contents need.
    void FitWindow() { FillWindow(wxSize(needed_)); }

    /// Makes room for contents that have become `times` as large. The window's size follows by
    /// itself.
    void Rescale(double times);

    void OnDraw(wxDC& dc) override;

  private:
    struct FramedChild {
        const wxWindow* child;
        int above;
    };

    void OnSize(wxSizeEvent& event);
    void LayOutContents();

    wxTopLevelWindow& window_;
    wxSize needed_;  // by the contents, in pixels
    std::vector<FramedChild> framedChildren_;
    std::vector<wxRect> framedAreas_;
};

/// The largest size in pixels for the inside of a window. At this size, the window with its title,
/// frame and menu bar stays within the free area of its screen.
[[nodiscard]] wxSize LargestInside(const wxTopLevelWindow& window);

/// Lays out `content` on the surface and sizes the surface's window to it, or to a width of `width`
/// pixels if that is not 0. The window is smaller if the screen requires it.
void FillWindow(Surface& surface, wxSizer* content, int width = 0);

}  // namespace brelex
