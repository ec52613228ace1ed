// SPDX-License-Identifier: MIT
#pragma once

#include <wx/string.h>

#include "database/folder_picker.h"

class wxWindow;

namespace brelex {

/// Lets the user choose a folder with the system's folder browser. Returns its path ending in the
/// separator, or an empty text if the user cancels. `owner` may be null.
[[nodiscard]] wxString BrowseForFolder(wxWindow* owner, const wxString& title);

/// BrowseForFolder over the whole desktop.
class DesktopFolderPicker final : public FolderPicker {
  public:
    std::string BrowseForFolder(const std::string& title) override;
};

}  // namespace brelex
