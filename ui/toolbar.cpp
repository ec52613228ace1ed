// SPDX-License-Identifier: MIT
#include "ui/toolbar.h"

#include <cstddef>
#include <utility>

#include <wx/app.h>
#include <wx/dcbuffer.h>
#include <wx/settings.h>

#include "platform/accessible_name.h"
#include "ui/artwork.h"
#include "ui/modFlatButton.h"
#include "ui/pending_events.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kIconSize = 32;
constexpr double kMargin = 4;
constexpr double kGap = 6;
constexpr double kSeparatorWidth = 12;

bool HasSeparatorBehind(std::size_t icon) {
    return icon == 1 || icon == 2 || icon == 4 || icon == 5;
}

int ButtonsOf(const wxMouseEvent& event) {
    return (event.LeftIsDown() ? kLeftButton : 0) | (event.RightIsDown() ? kRightButton : 0) |
           (event.MiddleIsDown() ? kMiddleButton : 0);
}

}  // namespace

Toolbar::Toolbar(wxWindow* parent, const LayoutUnits& units, ToolbarEvents events)
    : Backdrop(parent),
      units_(units),
      events_(std::move(events)),
      imgToolbarIcon(ToolbarPictures()) {
    SetNames(*this, "picToolbar", "Toolbar");
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    PlaceIcons();
    BindEvents();
}

// The toolkit wants the mouse back before the window goes.
Toolbar::~Toolbar() {
    if (HasCapture()) {
        ReleaseMouse();
    }
}

void Toolbar::PlaceIcons() {
    const auto px = [this](double units) { return units_.Pixels(units); };
    const int size = px(kIconSize);
    const int margin = px(kMargin);
    int x = margin;
    for (std::size_t i = 0; i < kToolbarIcons.size(); ++i) {
        bounds_.push_back({.left = static_cast<double>(x),
                           .top = static_cast<double>(margin),
                           .width = static_cast<double>(size),
                           .height = static_cast<double>(size)});
        x += size + px(kGap);
        if (HasSeparatorBehind(i)) {
            separators_.push_back(x + px(kSeparatorWidth - kGap) / 2 - 1);
            x += px(kSeparatorWidth);
        }
    }
    const wxSize whole(x, size + 2 * margin);
    SetInitialSize(whole);
    state_.emplace(bounds_, whole.x, whole.y, static_cast<ToolbarView&>(*this));
}

void Toolbar::BindEvents() {
    Bind(wxEVT_PAINT, &Toolbar::OnPaint, this);
    Bind(wxEVT_MOTION, &Toolbar::OnMove, this);
    for (const wxEventTypeTag<wxMouseEvent>& type : {wxEVT_LEFT_DOWN, wxEVT_LEFT_DCLICK}) {
        Bind(type, [this](wxMouseEvent&) {
            buttonsDown_ |= kLeftButton;
            SetCapture();
            state_->OnMouseDown(kLeftButton);
        });
    }
    Bind(wxEVT_LEFT_UP, [this](wxMouseEvent&) {
        buttonsDown_ &= ~kLeftButton;
        ReleaseCapture();
        state_->OnMouseUp(kLeftButton);
    });
    Bind(wxEVT_RIGHT_DOWN, [this](wxMouseEvent&) { state_->OnMouseDown(kRightButton); });
    Bind(wxEVT_RIGHT_UP, [this](wxMouseEvent&) { state_->OnMouseUp(kRightButton); });
    Bind(wxEVT_LEAVE_WINDOW, [this](wxMouseEvent& event) {
        event.Skip();
        if (!HasCapture()) {
            state_->OnMouseMove(0, -1, -1);
        }
    });
    Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { state_->OnCaptureLost(); });
}

// A window that has been closed hears of the mouse until it is destroyed, which the events that
// the state lets run would do under its feet.
void Toolbar::OnMove(wxMouseEvent& event) {
    if (wxTheApp->IsScheduledForDestruction(wxGetTopLevelParent(this))) {
        return;
    }
    const wxPoint mouse = event.GetPosition();
    event.Skip();
    buttonsDown_ = ButtonsOf(event);
    state_->OnMouseMove(buttonsDown_, mouse.x, mouse.y);
}

void Toolbar::OnPaint(wxPaintEvent& /*event*/) {
    wxAutoBufferedPaintDC dc(this);
    dc.SetBackground(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    dc.Clear();
    const int height = GetClientSize().y;
    const int margin = units_.Pixels(kMargin);
    for (const int x : separators_) {
        dc.SetPen(wxPen(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNSHADOW)));
        dc.DrawLine(x, margin, x, height - margin);
        dc.SetPen(wxPen(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNHIGHLIGHT)));
        dc.DrawLine(x + 1, margin, x + 1, height - margin);
    }
    for (std::size_t i = 0; i < bounds_.size(); ++i) {
        const IconBounds& icon = bounds_[i];
        const wxSize size(static_cast<int>(icon.width), static_cast<int>(icon.height));
        wxBitmap picture = imgToolbarIcon.at(i).GetBitmap(size * GetContentScaleFactor());
        picture.SetScaleFactor(GetContentScaleFactor());
        dc.DrawBitmap(picture, static_cast<int>(icon.left), static_cast<int>(icon.top));
        DrawFlatButton(icon, dc, states_.at(i));
    }
}

void Toolbar::LetGo() {
    ReleaseCapture();
    state_->OnCaptureLost();
}

// Only while a button is held: without one the toolkit tells when the mouse leaves, and Windows
// has no menu keys while the mouse is captured.
void Toolbar::SetCapture() {
    if (buttonsDown_ != 0 && !HasCapture()) {
        CaptureMouse();
    }
}

void Toolbar::ReleaseCapture() {
    if (HasCapture()) {
        ReleaseMouse();
    }
}

// Not the mouse's next movements nor the windows that an action opens: what they change here, the
// movement in hand would change back.
void Toolbar::LetPendingEventsRun() {
    LetPendingPaintingRun();
}

void Toolbar::DrawIcon(int icon, int state) {
    states_.at(static_cast<std::size_t>(icon)) = state;
    Refresh();
    Update();
}

void Toolbar::Describe(int icon) {
    if (icon < 0) {
        UnsetToolTip();
    } else {
        SetToolTip(kToolbarIcons.at(static_cast<std::size_t>(icon)).toolTip);
    }
    events_.onHot(icon);
}

void Toolbar::RunAction(int icon) {
    events_.onAction(icon);
}

}  // namespace brelex
