// SPDX-License-Identifier: MIT
#pragma once

#include <wx/string.h>

class wxWindow;

namespace brelex {

/// Lets the user choose a folder with the system's folder browser, which shows only folders of the
/// file system. `title` tells the user what to choose. Returns the folder's path ending in the
/// separator, or an empty text if the user cancels. Without an owner (null), the desktop owns the
/// browser.
[[nodiscard]] wxString BrowseForFolder(wxWindow* owner, const wxString& title);

}  // namespace brelex
