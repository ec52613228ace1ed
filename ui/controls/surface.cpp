// SPDX-License-Identifier: MIT
#include "ui/controls/surface.h"

#include <algorithm>
#include <cassert>
#include <cmath>

#include <wx/dc.h>
#include <wx/display.h>
#include <wx/frame.h>
#include <wx/menu.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include "platform/window/own_layout.h"
#include "platform/window/spoken_object.h"
#include "ui/controls/modGeneral.h"

namespace brelex {

namespace {

// The title and frame, if the desktop does not report them before it shows the window.
constexpr int kUsualTitle = 40;
constexpr int kUsualEdge = 4;

// A menu bar that was not shown yet does not know its height either.
int MenuBarHeight(const wxTopLevelWindow& window) {
    const auto* const frame = dynamic_cast<const wxFrame*>(&window);
    return frame == nullptr || frame->GetMenuBar() == nullptr
               ? 0
               : std::max(wxSystemSettings::GetMetric(wxSYS_MENU_Y, &window),
                          window.GetCharHeight() + window.FromDIP(14));
}

}  // namespace

wxSize LargestInside(const wxTopLevelWindow& window) {
    const int index = wxDisplay::GetFromWindow(&window);
    const wxDisplay display(index == wxNOT_FOUND ? 0U : static_cast<unsigned>(index));
    const wxSize usual(2 * window.FromDIP(kUsualEdge),
                       window.FromDIP(kUsualTitle + kUsualEdge) + MenuBarHeight(window));
    wxSize around = window.GetSize() - window.GetClientSize();
    around.IncTo(usual);
    wxSize inside = display.GetClientArea().GetSize() - around;
    inside.IncTo(wxSize(1, 1));
    return inside;
}

Surface::Surface(wxTopLevelWindow* window) : window_(*window) {
    // Without a name, which Windows would tell screen readers.
    Create(window, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL, wxEmptyString);
    // Nobody draws a background of their own, so the toolkit need not offer it at each painting.
    SetBackgroundStyle(wxBG_STYLE_SYSTEM);
    window->SetBackgroundStyle(wxBG_STYLE_SYSTEM);
    SetScrollRate(0, 0);
    MakeSpokenPanel(*this);
    LayOutAlone(*this);
    Bind(wxEVT_SIZE, &Surface::OnSize, this);
}

void Surface::FillWindow(const wxSize& size) {
    needed_ = size;
    wxSize inside = LargestInside(window_);
    const bool scrollsDown = size.y > inside.y;
    const bool scrollsAcross = size.x > inside.x;
    // A scroll bar takes room from the other direction.
    const wxSize wanted(
        size.x + (scrollsDown ? wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, &window_) : 0),
        size.y + (scrollsAcross ? wxSystemSettings::GetMetric(wxSYS_HSCROLL_Y, &window_) : 0));
    inside.DecTo(wanted);
    const int step = FromDIP(10);
    SetScrollRate(scrollsAcross ? step : 0, scrollsDown ? step : 0);
    window_.SetClientSize(inside);
    SetSize(inside);
    LayOutContents();
}

void Surface::OnSize(wxSizeEvent& event) {
    event.Skip();
    LayOutContents();
    Refresh();  // the frames have moved
}

void Surface::LayOutContents() {
    wxSize size = GetClientSize();
    size.IncTo(needed_);
    SetVirtualSize(size);
    if (GetSizer() != nullptr) {
        GetSizer()->SetDimension(CalcScrolledPosition(wxPoint(0, 0)), size);
    }
}

void Surface::FrameChild(const wxWindow& child, int above) {
    assert(child.GetParent() == this);
    framedChildren_.push_back({&child, above});
}

void Surface::FrameArea(const wxRect& area) {
    framedAreas_.push_back(area);
}

void Surface::Rescale(double times) {
    const auto scaled = [times](int pixels) {
        return static_cast<int>(std::lround(pixels * times));
    };
    needed_ = {scaled(needed_.x), scaled(needed_.y)};
    for (FramedChild& framed : framedChildren_) {
        framed.above = scaled(framed.above);
    }
    for (wxRect& area : framedAreas_) {
        area = {scaled(area.x), scaled(area.y), scaled(area.width), scaled(area.height)};
    }
}

// The toolkit has already moved the scrolled contents when it calls this.
void Surface::OnDraw(wxDC& dc) {
    for (const wxRect& area : framedAreas_) {
        Draw3DFrame(dc, area);
    }
    for (const auto& [child, above] : framedChildren_) {
        if (child->IsShown()) {
            const wxPoint corner = CalcUnscrolledPosition(child->GetPosition());
            const wxSize size = child->GetSize();
            Draw3DFrame(dc, {corner.x - 1, corner.y - above, size.x + 1, size.y + above});
        }
    }
}

void FillWindow(Surface& surface, wxSizer* content, int width) {
    surface.SetSizer(content);
    const wxSize size = content->GetMinSize();
    surface.FillWindow({width == 0 ? size.x : width, size.y});
}

}  // namespace brelex
