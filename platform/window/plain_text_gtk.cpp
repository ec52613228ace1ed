// SPDX-License-Identifier: MIT
#include "platform/window/plain_text.h"

#include <wx/stattext.h>

namespace brelex {

namespace {

// The toolkit makes every text the label of the next control that takes the focus.
class PlainText final : public wxStaticText {
  public:
    using wxStaticText::wxStaticText;

    [[nodiscard]] bool GTKWidgetNeedsMnemonic() const override { return false; }
};

}  // namespace

wxStaticText* NewPlainText(wxWindow* parent, const wxString& text, long style) {
    return new PlainText(parent, wxID_ANY, text, wxDefaultPosition, wxDefaultSize, style);
}

}  // namespace brelex
