// SPDX-License-Identifier: MIT
#pragma once

#include <wx/html/helpctrl.h>

namespace brelex {

/// Shows a help book in a window, with contents, index and search beside its pages. It must outlive
/// the window.
class HelpViewer final : public wxHtmlHelpController {
  public:
    HelpViewer();

    /// Opens the window with the book in a file. It shows `page` if the book has it, and the first
    /// page otherwise. `page` may include a place ("page.html#place"). Returns false if the file is
    /// not a book.
    [[nodiscard]] bool Show(const wxString& bookPath, const wxString& page);

    /// Shows a page of the book in the open window, or a place on it. The page comes from outside.
    /// If it is not a page of the book, it is ignored, so files outside the book cannot be opened.
    void TurnTo(const wxString& page);

  protected:
    wxHtmlHelpFrame* CreateHelpFrame(wxHtmlHelpData* data) override;
};

}  // namespace brelex
