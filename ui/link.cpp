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

// The toolkit wants the mouse back before the window goes.
Link::~Link() {
    if (HasCapture()) {
        ReleaseMouse();
    }
}

void Link::BindEvents() {
    SetDoubleBuffered(true);
    SetCursor(wxCursor(wxCURSOR_HAND));
    SetInitialSize(GetBestSize());
    Bind(wxEVT_PAINT, &Link::OnPaint, this);
    for (const wxEventTypeTag<wxMouseEvent>& type :
         {wxEVT_ENTER_WINDOW, wxEVT_LEAVE_WINDOW, wxEVT_MOTION, wxEVT_LEFT_DOWN, wxEVT_LEFT_DCLICK,
          wxEVT_LEFT_UP}) {
        Bind(type, &Link::OnMouse, this);
    }
    Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { SetHot(false); });
    // Before the dialog sees the key and takes Enter for its button.
    Bind(wxEVT_CHAR_HOOK, &Link::OnKey, this);
    for (const wxEventTypeTag<wxFocusEvent>& type : {wxEVT_SET_FOCUS, wxEVT_KILL_FOCUS}) {
        Bind(type, [this](wxFocusEvent& event) {
            Refresh();
            event.Skip();
        });
    }
}

wxSize Link::DoGetBestClientSize() const {
    // Letters may come out a little wider than they were measured (seen with Wine 8).
    const wxSize inner = text_.empty() ? picture_.GetPreferredLogicalSizeFor(this)
                                       : GetTextExtent(text_) + wxSize(GetCharWidth(), 0);
    return inner + wxSize(2 * kFocusMargin, 2 * kFocusMargin);
}

// While the mouse is captured, a button was pressed here and has not been released yet.
void Link::OnMouse(wxMouseEvent& event) {
    event.Skip();
    // Windows tells of a movement, too, when the mouse is only released.
    const wxPoint before = std::exchange(mouse_, event.GetPosition());
    if (event.GetEventType() == wxEVT_MOTION && mouse_ == before) {
        return;
    }
    const bool isOver =
        event.GetEventType() != wxEVT_LEAVE_WINDOW && GetClientRect().Contains(event.GetPosition());
    const bool wasPressed = HasCapture();
    SetHot(isOver);
    if (event.LeftUp() && wasPressed) {
        ReleaseMouse();
        if (isOver) {
            SetHot(false);
            open_();
        }
    } else if ((event.LeftDown() || event.LeftDClick()) && !wasPressed) {
        CaptureMouse();
    }
}

// A key that is held opens once.
void Link::OnKey(wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    const bool opens = key == WXK_SPACE || key == WXK_RETURN || key == WXK_NUMPAD_ENTER;
    if (!opens || event.HasAnyModifiers()) {
        event.Skip();
    } else if (!event.IsAutoRepeat()) {
        open_();
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
    Draw(dc);
    if (HasFocus()) {
        wxRendererNative::Get().DrawFocusRect(this, dc, GetClientRect());
    }
}

void Link::Draw(wxDC& dc) const {
    if (text_.empty()) {
        dc.DrawBitmap(picture_.GetBitmapFor(this), kFocusMargin, kFocusMargin);
    } else {
        wxFont font = GetFont();
        font.SetUnderlined(isHot_);
        dc.SetFont(font);
        dc.SetTextForeground(LinkColour());
        dc.DrawText(text_, kFocusMargin, kFocusMargin);
    }
}

}  // namespace brelex
