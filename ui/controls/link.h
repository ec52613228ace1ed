// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/bmpbndl.h>
#include <wx/window.h>

namespace brelex {

/// A text or picture that opens something. It opens when the left button is pressed and released
/// over it, and on Space or Enter. It is underlined while the mouse is over it.
class Link final : public wxWindow {
  public:
    /// The room around the text or picture for the mark of the focus, in pixels at 96 dots per
    /// inch.
    static constexpr int kFocusMargin = 4;

    Link(wxWindow* parent, const wxString& text, std::function<void()> open);
    Link(wxWindow* parent, const wxBitmapBundle& picture, std::function<void()> open);

    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;
    ~Link() override;

    [[nodiscard]] const wxString& Text() const { return text_; }

    /// Tells screen readers what the link is for and the address that it opens. Its name is its
    /// text, or the purpose if it is a picture.
    void DescribeAs(const wxString& purpose, const wxString& address);

    /// How far the room for the mark may reach into a margin below, if `neighbour` is centered
    /// beside the link. In pixels.
    [[nodiscard]] int ReachBelow(const wxWindow& neighbour) const;

    [[nodiscard]] bool IsUnderlined() const { return isHot_; }

    /// Draws the text or picture, but not the mark of the focus.
    void Draw(wxDC& dc) const;

  protected:
    [[nodiscard]] wxSize DoGetBestClientSize() const override;

  private:
    void BindEvents();
    void OnMouse(wxMouseEvent& event);
    void OnKey(wxKeyEvent& event);
    void OnPaint(wxPaintEvent& event);
    void SetHot(bool hot);

    wxString text_;
    wxBitmapBundle picture_;
    std::function<void()> open_;
    bool isHot_ = false;
    bool isKeyDown_ = false;  // a key that opens the link
    wxPoint mouse_;           // the last position
};

}  // namespace brelex
