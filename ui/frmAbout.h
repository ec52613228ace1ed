// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>
#include <string>

#include <wx/timer.h>

#include "database/program_values.h"
#include "presentation/moving_text.h"
#include "ui/side_window.h"

class wxButton;
class wxSizer;
class wxStaticText;

namespace brelex {

class Link;
class PaintedText;
class TitleImage;

/// The About box. Created anew for each use.
class frmAbout final : public SideWindow {
  public:
    /// `openAddress` opens a web or e-mail address. `values` and `openAddress` must outlive the
    /// window.
    frmAbout(wxTopLevelWindow* main, const ProgramValues& values,
             const std::function<void(const std::string&)>& openAddress);

  private:
    void CreateControls();
    [[nodiscard]] wxStaticText* NewLabel(const char* name, const wxString& text) const;
    [[nodiscard]] wxSizer* LayoutOfTexts();
    void PlaceControls();
    void AnimateText();
    void OnTitlePressed(wxMouseEvent& event);

    const ProgramValues& values_;
    const std::function<void(const std::string&)>& openAddress_;
    SlidingText slidingText_;

    TitleImage* picAppTitle = nullptr;
    wxStaticText* lblDescription = nullptr;
    wxStaticText* lblVersion = nullptr;
    wxStaticText* lblCopyRight = nullptr;
    wxStaticText* lblDBVersion = nullptr;
    std::array<Link*, 2> lblHyperLink = {};
    PaintedText* picPayPal = nullptr;
    Link* imgPayPalDonate = nullptr;
    wxButton* cmdOK = nullptr;
    wxTimer tmrAnimateText;
};

}  // namespace brelex
