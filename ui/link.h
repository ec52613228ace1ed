// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <wx/bmpbndl.h>
#include <wx/window.h>

namespace brelex {

/// A text or picture that opens something. It is underlined while the mouse is over it, and opens
/// when the left button is released over it; by keyboard with Space or Return.
class Link final : public wxWindow {
  public:
    Link(wxWindow* parent, const wxString& text, std::function<void()> open);
    Link(wxWindow* parent, const wxBitmapBundle& picture, std::function<void()> open);

    [[nodiscard]] const wxString& Text() const { return text_; }

    [[nodiscard]] bool IsUnderlined() const { return isHot_; }

  protected:
    [[nodiscard]] wxSize DoGetBestClientSize() const override;

  private:
    void BindEvents();
    void OnMouse(wxMouseEvent& event);
    void OnPaint(wxPaintEvent& event);
    void SetHot(bool hot);

    wxString text_;
    wxBitmapBundle picture_;
    std::function<void()> open_;
    bool isHot_ = false;
};

}  // namespace brelex
