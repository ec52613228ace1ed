// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include <wx/dialog.h>

#include "database/program_values.h"
#include "ui/controls/layout_units.h"

class wxButton;

namespace brelex {

class Link;
class ScrollArea;

/// The window that asks for a donation. It is made for one use.
class frmDonation final : public wxDialog {
  public:
    /// `openAddress` opens a web address. `info` and it must outlive the window.
    frmDonation(wxTopLevelWindow* main, const AppInfo& info,
                const std::function<void(const std::string&)>& openAddress);

    void EndModal(int result) override;

  private:
    void CreateControls();
    void PlaceControls();
    void OpenDonationPage();

    const AppInfo& info_;
    const std::function<void(const std::string&)>& openAddress_;
    LayoutUnits units_;
    ScrollArea* picCredit = nullptr;
    Link* imgPayPalDonate = nullptr;
    wxButton* cmdDonate = nullptr;
    wxButton* cmdCancel = nullptr;
};

}  // namespace brelex
