// SPDX-License-Identifier: MIT
#pragma once

#include <wx/textdlg.h>

namespace brelex {

/// Asks for a line of text. The suggested text is selected, so that typing replaces it.
class TextQuestion final : public wxTextEntryDialog {
  public:
    TextQuestion(wxWindow* owner, const wxString& title, const wxString& prompt,
                 const wxString& proposed);

    bool TransferDataToWindow() override;
};

}  // namespace brelex
