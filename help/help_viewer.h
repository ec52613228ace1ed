// SPDX-License-Identifier: MIT
#pragma once

#include <wx/html/helpctrl.h>

namespace brelex {

/// Shows a help book in a window, with contents, index and search beside its pages. Must outlive
/// the window.
class HelpViewer final : public wxHtmlHelpController {
  public:
    HelpViewer();

    /// Opens the window with the book in a file, at the page `page` if the book has it, or else at
    /// the first one. `page` may name a place ("page.html#place"). Returns false if the file is not
    /// a book.
    [[nodiscard]] bool Show(const wxString& bookPath, const wxString& page);

  protected:
    wxHtmlHelpFrame* CreateHelpFrame(wxHtmlHelpData* data) override;
};

}  // namespace brelex
