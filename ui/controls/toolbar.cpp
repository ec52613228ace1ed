// SPDX-License-Identifier: MIT
#include "ui/controls/toolbar.h"

#include <cstddef>
#include <utility>

#include <wx/dcclient.h>
#include <wx/settings.h>

#include "platform/window/area_tool_tip.h"
#include "platform/window/spoken_object.h"
#include "ui/controls/artwork.h"
#include "ui/controls/colours.h"
#include "ui/controls/modFlatButton.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kIconSize = 32;
constexpr double kMargin = 4;
constexpr double kGap = 6;
constexpr double kSeparatorWidth = 12;

// The button that was pressed or released.
MouseButton ButtonOf(const wxMouseEvent& event) {
    switch (event.GetButton()) {
        case wxMOUSE_BTN_LEFT:
            return MouseButton::Left;
        case wxMOUSE_BTN_RIGHT:
            return MouseButton::Right;
        default:
            return MouseButton::Middle;
    }
}

// The caption of the command in its menu, without the marks that belong to menus.
wxString SpokenNameOf(Command command) {
    wxString name(DetailsOf(command).caption);
    name.Replace("&", "");
    name.Replace("...", "");
    return name.substr(0, name.find("  "));
}

// The buttons that are down, not counting the one that was pressed or released.
MouseButtons OtherButtonsOf(const wxMouseEvent& event) {
    const int changing = event.GetButton();
    return {.left = event.LeftIsDown() && changing != wxMOUSE_BTN_LEFT,
            .right = event.RightIsDown() && changing != wxMOUSE_BTN_RIGHT,
            .middle = event.MiddleIsDown() && changing != wxMOUSE_BTN_MIDDLE};
}

// The area behind the picture, so that one sees where the mouse is without looking for lines.
void DrawPlate(const IconBounds& icon, wxDC& dc, Edge edge) {
    const EdgeRectangle area = EdgeRectangleOf(icon);
    dc.SetPen(*wxTRANSPARENT_PEN);
    dc.SetBrush(wxBrush(WxColourOf(
        HotFace(RgbOf(wxSYS_COLOUR_BTNFACE), RgbOf(wxSYS_COLOUR_BTNTEXT), edge == Edge::Sunken))));
    dc.DrawRectangle(area.left, area.top, area.right - area.left, area.bottom - area.top);
}

}  // namespace

Toolbar::Toolbar(wxWindow* parent, const LayoutUnits& units, ToolbarEvents events)
    : Backdrop(parent),
      units_(units),
      events_(std::move(events)),
      imgToolbarIcon(ToolbarPictures()),
      state_(*this) {
    SetName("picToolbar");
    SetDoubleBuffered(true);
    PlaceIcons();
    DescribeIcons();
    BindEvents();
}

// The toolkit requires that a window releases the mouse before it is destroyed.
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
    for (const ToolbarIcon& icon : kToolbarIcons) {
        state_.AddIcon({.left = static_cast<double>(x),
                        .top = static_cast<double>(margin),
                        .width = static_cast<double>(size),
                        .height = static_cast<double>(size)});
        x += size + px(kGap);
        if (icon.endsGroup) {
            separators_.push_back(x + px(kSeparatorWidth - kGap) / 2 - 1);
            x += px(kSeparatorWidth);
        }
    }
    const wxSize whole(x, size + 2 * margin);
    SetInitialSize(whole);
    state_.SetSize(whole.x, whole.y);
}

void Toolbar::Rescale() {
    LetGo();
    state_.RemoveIcons();
    separators_.clear();
    PlaceIcons();
    Refresh();
}

void Toolbar::DescribeIcons() {
    std::vector<SpokenObject> icons;
    for (int i = 0; i < state_.IconCount(); ++i) {
        const ToolbarIcon& icon = kToolbarIcons.at(static_cast<std::size_t>(i));
        icons.push_back({.role = SpokenRole::Button,
                         .name = SpokenNameOf(icon.command),
                         .description = icon.toolTip,
                         .act = [this, i] { RunAction(i); },
                         .place = [this, i] { return AreaOf(i); }});
    }
    SetSpokenObject(*this, {.role = SpokenRole::ToolBar, .name = "Toolbar"}, std::move(icons));
}

wxRect Toolbar::AreaOf(int icon) const {
    const IconBounds& bounds = state_.BoundsOf(icon);
    return {static_cast<int>(bounds.left), static_cast<int>(bounds.top),
            static_cast<int>(bounds.width), static_cast<int>(bounds.height)};
}

void Toolbar::BindEvents() {
    Bind(wxEVT_PAINT, &Toolbar::OnPaint, this);
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        const wxSize size = GetClientSize();
        state_.SetSize(size.x, size.y);
        event.Skip();
    });
    // Entering counts as a movement, too: a window that covered the toolbar may have closed.
    for (const wxEventTypeTag<wxMouseEvent>& type : {wxEVT_MOTION, wxEVT_ENTER_WINDOW}) {
        Bind(type, &Toolbar::OnMove, this);
    }
    for (const wxEventTypeTag<wxMouseEvent>& type :
         {wxEVT_LEFT_DOWN, wxEVT_LEFT_DCLICK, wxEVT_RIGHT_DOWN, wxEVT_RIGHT_DCLICK}) {
        Bind(type, &Toolbar::OnButtonDown, this);
    }
    for (const wxEventTypeTag<wxMouseEvent>& type :
         {wxEVT_LEFT_UP, wxEVT_RIGHT_UP, wxEVT_MIDDLE_UP}) {
        Bind(type, &Toolbar::OnButtonUp, this);
    }
    Bind(wxEVT_LEAVE_WINDOW, [this](wxMouseEvent& event) {
        event.Skip();
        if (!HasCapture()) {
            state_.OnMouseLeave();
        }
    });
    Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { LetGo(); });
}

void Toolbar::OnMove(wxMouseEvent& event) {
    event.Skip();
    state_.OnMouseMove(OtherButtonsOf(event), event.GetX(), event.GetY());
}

// The mouse may not have moved since another window covered this place. Then this is where it
// entered.
void Toolbar::OnButtonDown(wxMouseEvent& event) {
    state_.OnMouseMove(OtherButtonsOf(event), event.GetX(), event.GetY());
    state_.OnMouseDown(ButtonOf(event));
}

void Toolbar::OnButtonUp(wxMouseEvent& event) {
    state_.OnMouseUp(ButtonOf(event), OtherButtonsOf(event));
}

void Toolbar::OnPaint(wxPaintEvent& /*event*/) {
    wxPaintDC dc(this);
    Draw(dc);
}

void Toolbar::Draw(wxDC& dc) const {
    const int height = GetClientSize().y;
    const int margin = units_.Pixels(kMargin);
    const SystemEdges edges = EdgesOnFace();
    for (const int x : separators_) {
        dc.SetPen(wxPen(edges.shadow));
        dc.DrawLine(x, margin, x, height - margin);
        dc.SetPen(wxPen(edges.light));
        dc.DrawLine(x + 1, margin, x + 1, height - margin);
    }
    for (int i = 0; i < state_.IconCount(); ++i) {
        const IconBounds& icon = state_.BoundsOf(i);
        const wxSize size(static_cast<int>(icon.width), static_cast<int>(icon.height));
        const Edge edge = state_.EdgeOf(i);
        if (edge != Edge::Flat) {
            DrawPlate(icon, dc, edge);
        }
        wxBitmap picture = imgToolbarIcon.at(static_cast<std::size_t>(i))
                               .GetBitmap(size * GetContentScaleFactor());
        picture.SetScaleFactor(GetContentScaleFactor());
        dc.DrawBitmap(picture, static_cast<int>(icon.left), static_cast<int>(icon.top));
        // A flat edge has the color of buttons, which may differ from that of the window behind it.
        if (edge != Edge::Flat) {
            DrawFlatButton(icon, dc, edge);
        }
    }
}

void Toolbar::LetGo() {
    LetMouseGo();
    state_.OnCaptureLost();
}

void Toolbar::HoldMouse() {
    if (!HasCapture()) {
        CaptureMouse();
    }
}

void Toolbar::LetMouseGo() {
    if (HasCapture()) {
        ReleaseMouse();
    }
}

// This runs no events. The next movement of the mouse would change the state, the movement being
// handled would change it back, and the window might even be closed.
void Toolbar::LetPendingPaintingRun() {
    wxGetTopLevelParent(this)->Update();
}

void Toolbar::DrawIcon(int /*icon*/) {
    Refresh();
    Update();
}

void Toolbar::Describe(int icon) {
    if (icon < 0) {
        SetAreaToolTip(*this, {}, wxEmptyString);
    } else {
        SetAreaToolTip(*this, AreaOf(icon),
                       kToolbarIcons.at(static_cast<std::size_t>(icon)).toolTip);
    }
    events_.onHot(icon);
}

void Toolbar::RunAction(int icon) {
    events_.onAction(kToolbarIcons.at(static_cast<std::size_t>(icon)).command);
}

}  // namespace brelex
