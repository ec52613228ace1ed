// SPDX-License-Identifier: MIT
#pragma once

#include <wx/dialog.h>
#include <wx/timer.h>

#include "base/temporary_files.h"
#include "database/program_values.h"
#include "platform/desktop/wx_message_sink.h"
#include "ui/controls/layout_units.h"

class wxButton;
class wxStaticBitmap;
class wxStaticText;

namespace brelex {

class Surface;
class ProgressBar;

/// The window "Check Data Integrity". It is made for one use.
class frmCheckData final : public wxDialog {
  public:
    /// `values` and `files` must outlive the window; the database is loaded.
    frmCheckData(wxTopLevelWindow* main, const ProgramValues& values, TemporaryFiles& files);

    void EndModal(int result) override;

    bool Aborted = false;  ///< the user has ended the check

  private:
    class Watcher;

    void CreateControls();
    void NameControls();
    void PlaceControls();
    void BindEvents();

    void RunCheck();
    void DrawProgress(int percent);
    void ClearProgress();
    void ClearResult();
    void ShowResult(bool passed);
    void ReturnToIdle();
    void OnCancel();
    void OnClose(wxCloseEvent& event);
    void OnPaint(wxPaintEvent& event);
    [[nodiscard]] bool IsChecking() const;

    const ProgramValues& values_;
    TemporaryFiles& files_;
    WxMessageSink messages_;
    LayoutUnits units_;
    bool saysAborted_ = false;  // when the check has ended

    Surface* surface_ = nullptr;
    wxStaticText* lblExplanation_ = nullptr;
    wxStaticText* lblMessage = nullptr;
    ProgressBar* picProgbar = nullptr;
    wxWindow* resultArea_ = nullptr;
    wxStaticBitmap* imgResult = nullptr;
    wxStaticBitmap* imgPassed = nullptr;
    wxStaticBitmap* imgFailed = nullptr;
    wxStaticText* lblResult = nullptr;
    wxButton* cmdCheck = nullptr;
    wxButton* cmdCancel = nullptr;
    wxTimer tmrBlink;
};

}  // namespace brelex
