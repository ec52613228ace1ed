// SPDX-License-Identifier: MIT
#include "platform/desktop/modBrowseFolder.h"

#include <wx/dirdlg.h>

#include <gtk/gtk.h>

#include "base/file_io.h"
#include "platform/desktop/lone_window_gtk.h"
#include "platform/system/program_folder.h"
#include "toolkit/wx_text.h"

namespace brelex {

wxString BrowseForFolder(wxWindow* owner, const wxString& title) {
    // Without a folder to start in, GTK lists recently used ones, and no path can be typed there.
    // The user usually looks for a file near the program.
    wxDirDialog browser(owner, title, WxText(ProgramFolder()),
                        wxDD_DEFAULT_STYLE | wxDD_DIR_MUST_EXIST);
    if (browser.GetParent() == nullptr) {
        MakeFindable(GTK_WINDOW(browser.GetHandle()));
    }
    if (browser.ShowModal() != wxID_OK) {
        return {};
    }
    return WxText(WithTrailingSeparator(Utf8Text(browser.GetPath())));
}

}  // namespace brelex
