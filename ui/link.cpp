// SPDX-License-Identifier: MIT
#include "ui/link.h"

#include <utility>

#include <wx/dcclient.h>
#include <wx/renderer.h>
#include <wx/settings.h>

namespace brelex {

namespace {

constexpr int kFocusMargin = 2;  // pixels

// Not the system's colour for links: themes have some that cannot be read (seen with GTK 3.24 and
// Wine 8).
wxColour LinkColour() {
    return wxSystemSettings::GetAppearance().IsUsingDarkBackground() ? wxColour(120, 174, 237)
                                                                     : wxColour(0, 80, 180);
}

}  // namespace

Link::Link(wxWindow* parent, const wxString& text, std::function<void()> open)
    : wxWindow(parent, wxID_ANY),
      text_(text),
      open_(std::move(open)) {
    BindEvents();
}

Link::Link(wxWindow* parent, const wxBitmapBundle& picture, std::function<void()> open)
    : wxWindow(parent, wxID_ANY),
      picture_(picture),
      open_(std::move(open)) {
    BindEvents();
}

void Link::BindEvents() {
    SetDoubleBuffered(true);
    SetCursor(wxCursor(wxCURSOR_HAND));
    SetInitialSize(GetBestSize());
    Bind(wxEVT_PAINT, &Link::OnPaint, this);
    for (const wxEventTypeTag<wxMouseEvent>& type :
         {wxEVT_ENTER_WINDOW, wxEVT_LEAVE_WINDOW, wxEVT_MOTION, wxEVT_LEFT_UP}) {
        Bind(type, &Link::OnMouse, this);
    }
    Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_SPACE || event.GetKeyCode() == WXK_RETURN) {
            open_();
        } else {
            event.Skip();
        }
    });
    for (const wxEventTypeTag<wxFocusEvent>& type : {wxEVT_SET_FOCUS, wxEVT_KILL_FOCUS}) {
        Bind(type, [this](wxFocusEvent& event) {
            Refresh();
            event.Skip();
        });
    }
}

wxSize Link::DoGetBestClientSize() const {
    const wxSize inner =
        text_.empty() ? picture_.GetPreferredLogicalSizeFor(this) : GetTextExtent(text_);
    return inner + wxSize(2 * kFocusMargin, 2 * kFocusMargin);
}

// While a button is held that was pressed here, some systems send all movements here.
void Link::OnMouse(wxMouseEvent& event) {
    event.Skip();
    const bool isOver =
        event.GetEventType() != wxEVT_LEAVE_WINDOW && GetClientRect().Contains(event.GetPosition());
    if (event.GetEventType() == wxEVT_LEFT_UP && isOver) {
        SetHot(false);
        open_();
    } else {
        SetHot(isOver);
    }
}

void Link::SetHot(bool hot) {
    if (hot != isHot_) {
        isHot_ = hot;
        Refresh();
    }
}

void Link::OnPaint(wxPaintEvent& /*event*/) {
    wxPaintDC dc(this);
    if (text_.empty()) {
        dc.DrawBitmap(picture_.GetBitmapFor(this), kFocusMargin, kFocusMargin);
    } else {
        wxFont font = GetFont();
        font.SetUnderlined(isHot_);
        dc.SetFont(font);
        dc.SetTextForeground(LinkColour());
        dc.DrawText(text_, kFocusMargin, kFocusMargin);
    }
    if (HasFocus()) {
        wxRendererNative::Get().DrawFocusRect(this, dc, GetClientRect());
    }
}

}  // namespace brelex
