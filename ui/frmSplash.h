// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include <wx/frame.h>

#include "base/long_work.h"
#include "database/program_values.h"

class wxStaticText;

namespace brelex {

/// The window shown while the database is loaded. It shows what the program is and how far loading
/// has come.
class frmSplash final : public wxFrame, public WorkWatcher {
  public:
    explicit frmSplash(const AppInfo& info);

    /// Waits until the window, which was just shown, is on the screen, but at most a fifth of a
    /// second.
    void WaitUntilSeen();

    void SetStatusText(std::string_view text) override;
    void SetProgress(int percent) override;

  private:
    using wxFrame::SetStatusText;  // the frame's own function, which writes into a status bar

    [[nodiscard]] wxStaticText* NewLabel(const wxString& name, const wxString& text);
    void OnPaint(wxPaintEvent& event);
    void PlacePercent();
    void PaintAtOnce();

    wxStaticText* lblMessage = nullptr;
    wxStaticText* lblPercent = nullptr;
    std::chrono::steady_clock::time_point lastPaint_;
};

}  // namespace brelex
