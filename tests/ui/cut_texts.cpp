// SPDX-License-Identifier: MIT
#include "tests/ui/cut_texts.h"

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

}  // namespace

std::vector<std::string> CutTexts(wxTopLevelWindow& window) {
    Inspection inspection;
    inspection.Look(window);
    const wxRect frame = FrameOnScreen(window);
    const wxSize screen = ScreenSize();
    if (frame.width > screen.x || frame.height > screen.y) {
        inspection.faults.push_back("the window of " + SizeText(frame.GetSize()) +
                                    " is larger than the screen");
    }
    return inspection.faults;
}

}  // namespace brelex
