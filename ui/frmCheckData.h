// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include <wx/timer.h>

#include "database/check_session.h"
#include "platform/system/fine_timer.h"
#include "ui/side_window.h"

class wxButton;
class wxStaticBitmap;
class wxStaticText;

namespace brelex {

class ProgressBar;

/// The window "Check Data Integrity". It is made for one use.
class frmCheckData final : public SideWindow, private CheckView {
  public:
    /// `values` and `files` must outlive the window. The database is loaded.
    frmCheckData(wxTopLevelWindow* main, const ProgramValues& values, TemporaryFiles& files);

    /// Whether the user has stopped the check.
    [[nodiscard]] bool Aborted() const { return session_.Aborted(); }

  private:
    void CreateControls();
    void PlaceControls();
    void BindEvents();

    void ShowDisplay(const CheckDisplay& display) override;
    void MoveFocus(CheckFocus focus) override;
    void LetEventsRun(int restMs) override;
    void CloseWindow() override;

    void DrawProgress(std::optional<int> percent);
    void ShowResult(const CheckDisplay& display);
    void OnBlink();

    CheckSession session_;
    std::optional<CheckDisplay> shown_;
    std::optional<FineTimer> fineTimer_;  // while a check runs
    bool isBlinkedOut_ = false;           // whether the result text is hidden at the moment

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
