// SPDX-License-Identifier: MIT
#include "platform/desktop/modBrowseFolder.h"

#include <array>

#include <wx/bmpbndl.h>
#include <wx/iconbndl.h>
#include <wx/window.h>

#include <windows.h>
#include <shlobj.h>

#include "base/file_io.h"
#include "platform/desktop/dialog_hook_msw.h"
#include "toolkit/app_icon.h"
#include "toolkit/wx_text.h"

namespace brelex {

wxString BrowseForFolder(wxWindow* owner, const wxString& title) {
    BROWSEINFOW request{};
    request.hwndOwner = owner != nullptr ? owner->GetHWND() : GetDesktopWindow();
    request.lpszTitle = title.wc_str();
    request.ulFlags = BIF_RETURNONLYFSDIRS;
    const wxIconBundle icons = AppIcons();
    const DialogHook hook([&](HWND browser) { GiveIcons(browser, icons); });
    PIDLIST_ABSOLUTE const chosen = SHBrowseForFolderW(&request);
    if (chosen == nullptr) {
        return {};
    }
    std::array<wchar_t, MAX_PATH> path{};
    SHGetPathFromIDListW(chosen, path.data());
    CoTaskMemFree(chosen);
    return WxText(WithTrailingSeparator(Utf8Text(path.data())));
}

}  // namespace brelex
