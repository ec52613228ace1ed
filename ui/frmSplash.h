// SPDX-License-Identifier: MIT
#pragma once

#include <wx/frame.h>

#include "base/progress_sink.h"
#include "database/program_values.h"

class wxStaticText;

namespace brelex {

/// The window that is up while the database is loaded. It shows what the program is and how far
/// the loading is.
class frmSplash final : public wxFrame, public ProgressSink {
  public:
    explicit frmSplash(const AppInfo& info);

    /// Waits until the window, which was just shown, is on the screen, or for a fifth of a second.
    void WaitUntilSeen();

    void SetStatusText(std::string_view text) override;
    void SetProgress(int percent) override;

  private:
    using wxFrame::SetStatusText;  // the frame's own is about a status bar, which this has not

    wxStaticText* AddLabel(const wxString& name, const wxString& text);
    void OnPaint(wxPaintEvent& event);
    void PlacePercent();
    void PaintAtOnce();

    wxStaticText* lblMessage = nullptr;
    wxStaticText* lblPercent = nullptr;
    wxLongLong lastPaintMs_ = 0;
};

}  // namespace brelex
