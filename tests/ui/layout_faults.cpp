// SPDX-License-Identifier: MIT
#include "tests/ui/layout_faults.h"

#include <algorithm>

#include <wx/anybutton.h>
#include <wx/checkbox.h>
#include <wx/dcclient.h>
#include <wx/radiobut.h>
#include <wx/scrolwin.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>

#include "tests/platform/screen.h"
#include "toolkit/wx_text.h"
#include "ui/controls/layout_units.h"
#include "ui/controls/link.h"
#include "ui/side_window.h"

namespace brelex {

namespace {

std::string SizeText(const wxSize& size) {
    return std::to_string(size.x) + " x " + std::to_string(size.y);
}

class Inspection {
  public:
    std::vector<std::string> faults;

    void Look(wxWindow& window) {
        for (wxWindow* const child : window.GetChildren()) {
            if (child->IsTopLevel() || !child->IsShown()) {
                continue;
            }
            LookAtRoom(window, *child);
            LookAtNeighbors(window, *child);
            LookAtText(*child);
            Look(*child);
        }
    }

  private:
    void Report(const wxWindow& control, const std::string& fault) {
        faults.push_back(Utf8Text(control.GetName()) + " \"" +
                         Utf8Text(wxControl::RemoveMnemonics(control.GetLabel())) + "\" " + fault);
    }

    void LookAtRoom(const wxWindow& parent, const wxWindow& control) {
        wxSize room = parent.GetClientSize();
        if (dynamic_cast<const wxScrolled<wxPanel>*>(&parent) != nullptr) {
            room.IncTo(parent.GetVirtualSize());
        }
        if (dynamic_cast<const wxTextCtrl*>(&parent) != nullptr) {
            return;
        }
        const wxRect area = control.GetRect();
        const auto* const scrolled = dynamic_cast<const wxScrolled<wxPanel>*>(&parent);
        const wxPoint corner = scrolled == nullptr
                                   ? area.GetTopLeft()
                                   : scrolled->CalcUnscrolledPosition(area.GetTopLeft());
        if (corner.x < 0 || corner.y < 0 || corner.x + area.width > room.x ||
            corner.y + area.height > room.y) {
            Report(control, "reaches to " +
                                SizeText({corner.x + area.width, corner.y + area.height}) + " in " +
                                SizeText(room));
        }
    }

    // A static box stands around its controls.
    void LookAtNeighbors(const wxWindow& parent, const wxWindow& control) {
        if (dynamic_cast<const wxStaticBox*>(&control) != nullptr) {
            return;
        }
        bool isAfter = false;
        for (const wxWindow* const other : parent.GetChildren()) {
            if (isAfter && other->IsShown() && !other->IsTopLevel() &&
                dynamic_cast<const wxStaticBox*>(other) == nullptr &&
                other->GetRect().Intersects(control.GetRect())) {
                Report(control, "overlaps " + Utf8Text(other->GetName()));
            }
            isAfter = isAfter || other == &control;
        }
    }

    void LookAtText(wxWindow& control) {
        wxSize needed;
        if (auto* const label = dynamic_cast<wxStaticText*>(&control)) {
            wxClientDC dc(label);
            dc.SetFont(label->GetFont());
            needed = dc.GetMultiLineTextExtent(label->GetLabelText());
        } else if (dynamic_cast<wxAnyButton*>(&control) != nullptr ||
                   dynamic_cast<wxCheckBox*>(&control) != nullptr ||
                   dynamic_cast<wxRadioButton*>(&control) != nullptr ||
                   dynamic_cast<wxStaticBox*>(&control) != nullptr) {
            needed = control.GetBestSize();
        }
        const wxSize has = control.GetSize();
        constexpr int kRounding = 1;
        if (needed.x > has.x || (needed.x > 0 && needed.y > has.y + kRounding)) {
            Report(control, "needs " + SizeText(needed) + " and has " + SizeText(has));
        }
    }
};

// What a user sees of a control: a link without the room for its focus mark.
wxRect SeenPlaceOf(const wxWindow& control) {
    const bool isLink = dynamic_cast<const Link*>(&control) != nullptr;
    return control.GetRect().Deflate(isLink ? control.FromDIP(Link::kFocusMargin) : 0);
}

// The least distance between a control and the edge of its surface.
int MarginOf(const wxScrolled<wxPanel>& surface) {
    const wxSize room = surface.GetVirtualSize();
    int margin = room.x;
    for (const wxWindow* const control : surface.GetChildren()) {
        if (control->IsShown()) {
            const wxRect place = SeenPlaceOf(*control);
            const wxPoint corner = surface.CalcUnscrolledPosition(place.GetPosition());
            const wxSize size = place.GetSize();
            margin = std::min({margin, corner.x, corner.y, room.x - corner.x - size.x,
                               room.y - corner.y - size.y});
        }
    }
    return margin;
}

}  // namespace

std::vector<std::string> LayoutFaults(wxTopLevelWindow& window) {
    Inspection inspection;
    inspection.Look(window);
    const LayoutUnits units(window);
    for (const wxWindow* const child : window.GetChildren()) {
        const auto* const surface = dynamic_cast<const wxScrolled<wxPanel>*>(child);
        if (surface != nullptr && dynamic_cast<const SideWindow*>(&window) != nullptr &&
            MarginOf(*surface) < units.Pixels(kWindowMargin)) {
            inspection.faults.push_back("a control is " + std::to_string(MarginOf(*surface)) +
                                        " pixels from the window's edge");
        }
    }
    const wxRect frame = FrameOnScreen(window);
    const wxSize screen = ScreenSize();
    if (frame.width > screen.x || frame.height > screen.y) {
        inspection.faults.push_back("the window of " + SizeText(frame.GetSize()) +
                                    " is larger than the screen");
    }
    return inspection.faults;
}

}  // namespace brelex
