// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "base/app_info.h"
#include "ui/side_window.h"

class wxButton;

namespace brelex {

class Link;
class ScrollArea;

/// The window that asks for a donation. Created anew for each use.
class frmDonation final : public SideWindow {
  public:
    /// `openAddress` opens a web address. `info` and `openAddress` must outlive the window.
    frmDonation(wxTopLevelWindow* main, const AppInfo& info,
                const std::function<void(const std::string&)>& openAddress);

  private:
    void CreateControls();
    void PlaceControls();
    void OpenDonationPage();

    const AppInfo& info_;
    const std::function<void(const std::string&)>& openAddress_;
    ScrollArea* picCredit = nullptr;
    Link* imgPayPalDonate = nullptr;
    wxButton* cmdDonate = nullptr;
    wxButton* cmdCancel = nullptr;
};

}  // namespace brelex
