// SPDX-License-Identifier: MIT
#include "platform/modBrowseFolder.h"

#include <wx/dirdlg.h>

#include "database/file_io.h"
#include "ui/wx_text.h"

namespace brelex {

wxString BrowseForFolder(wxWindow* owner, const wxString& title) {
    wxDirDialog browser(owner, title, wxEmptyString, wxDD_DEFAULT_STYLE | wxDD_DIR_MUST_EXIST);
    if (browser.ShowModal() != wxID_OK) {
        return {};
    }
    return WxText(WithTrailingSeparator(Utf8Text(browser.GetPath())));
}

}  // namespace brelex
