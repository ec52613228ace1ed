// SPDX-License-Identifier: MIT
#pragma once

#include <wx/msgdlg.h>

namespace brelex {

/// A message box of the system with one of its standard icons. The toolkit's own box has no icons
/// on GTK and opens a different kind of dialog on Windows. The box belongs to the owner's window,
/// or else to the window in front. During start-up, while the program has no window, the user can
/// find the box like any other window: it has the program's icon, appears in the taskbar, and stays
/// above others.
class SystemMessageBox final : public wxMessageDialog {
  public:
    /// `owner` may be null. `style` is wxOK or wxYES_NO and one of wxICON_NONE, wxICON_INFORMATION,
    /// wxICON_QUESTION, wxICON_EXCLAMATION and wxICON_ERROR.
    SystemMessageBox(wxWindow* owner, const wxString& text, const wxString& title, long style)
        : wxMessageDialog(owner, text, title, style) {}

    /// Returns the identifier of the button, or wxID_CANCEL if the box is closed without one.
    int ShowModal() override;
};

}  // namespace brelex
