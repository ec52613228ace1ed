// SPDX-License-Identifier: MIT
#pragma once

#include <wx/fs_zip.h>

namespace brelex {

/// Reads the files of help books in the user's colors. The pages, in UTF-8, name the colors of
/// black print on white paper. Where the user's background is dark, they also get the pictures of
/// dark windows, which a book keeps in the folder "dark" beside "light".
class ThemedBook final : public wxZipFSHandler {
  public:
    wxFSFile* OpenFile(wxFileSystem& files, const wxString& location) override;

    /// During its lifetime, pages are read as they are, for paper.
    class OnPaper {
      public:
        OnPaper();
        OnPaper(const OnPaper&) = delete;
        OnPaper& operator=(const OnPaper&) = delete;
        ~OnPaper();
    };

  private:
    // The toolkit copies handlers, and would otherwise make a copy of the base class.
    wxDECLARE_DYNAMIC_CLASS(ThemedBook);  // NOLINT: the toolkit's macro
};

}  // namespace brelex
