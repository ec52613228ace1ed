// SPDX-License-Identifier: MIT
#include <wx/app.h>
#include <wx/frame.h>

namespace {

class EmptyApp final : public wxApp {
  public:
    bool OnInit() override {
        auto* frame = new wxFrame(nullptr, wxID_ANY, "Empty frame (none)");
        return frame->Show();
    }
};

}  // namespace

wxIMPLEMENT_APP(EmptyApp);
