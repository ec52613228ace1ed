// SPDX-License-Identifier: MIT
#include "ui/controls/link.h"

#include <algorithm>
#include <utility>

#include <wx/dcclient.h>
#include <wx/settings.h>

#include "platform/window/spoken_object.h"

namespace brelex {

namespace {

constexpr int kFocusMark = 2;  // in pixels at 96 dots per inch

// The system's color for links is not used, because some themes make it illegible (seen with GTK
// 3.24 and Wine 8).
wxColour LinkColour() {
    return wxSystemSettings::GetAppearance().IsUsingDarkBackground() ? wxColour(120, 174, 237)
                                                                     : wxColour(0, 80, 180);
}

bool IsOpeningKey(const wxKeyEvent& event) {
    const int key = event.GetKeyCode();
    return key == WXK_SPACE || key == WXK_RETURN || key == WXK_NUMPAD_ENTER;
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

// The toolkit requires that a window releases the mouse before it is destroyed.
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
    // This must come before the dialog sees the key and takes Enter for its button.
    Bind(wxEVT_CHAR_HOOK, &Link::OnKey, this);
    Bind(wxEVT_KEY_UP, [this](wxKeyEvent& event) {
        isKeyDown_ = isKeyDown_ && !IsOpeningKey(event);
        event.Skip();
    });
    for (const wxEventTypeTag<wxFocusEvent>& type : {wxEVT_SET_FOCUS, wxEVT_KILL_FOCUS}) {
        Bind(type, [this](wxFocusEvent& event) {
            isKeyDown_ = false;  // the key may be released in another window
            Refresh();
            event.Skip();
        });
    }
}

wxSize Link::DoGetBestClientSize() const {
    // Letters may be drawn a little wider than measured (seen with Wine 8).
    const wxSize inner = text_.empty() ? picture_.GetPreferredLogicalSizeFor(this)
                                       : GetTextExtent(text_) + wxSize(GetCharWidth(), 0);
    const int margin = FromDIP(kFocusMargin);
    return inner + wxSize(2 * margin, 2 * margin);
}

int Link::ReachBelow(const wxWindow& neighbour) const {
    const int overhang = (GetBestSize().y - neighbour.GetBestSize().y) / 2;
    return std::clamp(overhang, 0, FromDIP(kFocusMargin));
}

// While the mouse is captured, a button was pressed here and is still down.
void Link::OnMouse(wxMouseEvent& event) {
    event.Skip();
    // Windows reports a movement even if the user only releases the button.
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

// Holding a key opens the link only once. GTK does not say whether a key repeats.
void Link::OnKey(wxKeyEvent& event) {
    if (!IsOpeningKey(event) || event.HasAnyModifiers()) {
        event.Skip();
    } else if (!std::exchange(isKeyDown_, true)) {
        open_();
    }
}

void Link::DescribeAs(const wxString& purpose, const wxString& address) {
    SetSpokenObject(*this, {.role = SpokenRole::Link,
                            .name = text_.empty() ? purpose : text_,
                            .description = text_.empty() ? wxString() : purpose,
                            .address = address,
                            .act = [this] { open_(); }});
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
        // The system's own mark is a pale dotted line. It is hard to see, especially on a picture.
        dc.SetPen(wxPen(LinkColour()));
        dc.SetBrush(*wxTRANSPARENT_BRUSH);
        for (int line = 0; line < FromDIP(kFocusMark); ++line) {
            dc.DrawRectangle(GetClientRect().Deflate(line));
        }
    }
}

void Link::Draw(wxDC& dc) const {
    const int margin = FromDIP(kFocusMargin);
    if (text_.empty()) {
        dc.DrawBitmap(picture_.GetBitmapFor(this), margin, margin);
    } else {
        wxFont font = GetFont();
        font.SetUnderlined(isHot_);
        dc.SetFont(font);
        dc.SetTextForeground(LinkColour());
        dc.DrawText(text_, margin, margin);
    }
}

}  // namespace brelex
