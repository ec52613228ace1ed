// SPDX-License-Identifier: MIT
#pragma once

#include <wx/html/helpctrl.h>

namespace brelex {

/// Shows a book of help in a window: contents, index and search beside its pages. Must live until
/// the window is gone.
class HelpViewer final : public wxHtmlHelpController {
  public:
    HelpViewer();

    /// Opens the window with the book in a file at one of its pages, the first one unless it has
    /// `page`. Returns false if the file is no book.
    [[nodiscard]] bool Show(const wxString& bookPath, const wxString& page);

    /// Shows a page, or a place on it ("page.html#place"). What is no page of the book is ignored.
    void TurnTo(const wxString& page);

  protected:
    wxHtmlHelpFrame* CreateHelpFrame(wxHtmlHelpData* data) override;
};

}  // namespace brelex
