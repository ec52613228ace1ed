// SPDX-License-Identifier: MIT
#include "ui/frmCheckData.h"

#include <string>

#include <wx/button.h>
#include <wx/dcclient.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include "base/scope.h"
#include "database/integrity_check.h"
#include "platform/system/fine_timer.h"
#include "platform/window/accessible_name.h"
#include "platform/window/paint_now.h"
#include "toolkit/app_icon.h"
#include "toolkit/pending_events.h"
#include "ui/controls/artwork.h"
#include "ui/controls/backdrop.h"
#include "ui/controls/progress_bar.h"
#include "ui/controls/surface.h"
#include "ui/modGeneral.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kInnerWidth = 440;
constexpr double kMargin = 12;
constexpr double kBarHeight = 24;

constexpr int kPauseMs = 5;
constexpr int kBlinkMs = 500;

const char* const kExplanation =
    "Checks data integrity of the database. The integrity check will fail even if a single letter "
    "in the database has changed. It may be due to a corrupt installation file or a bad sector on "
    "your disk.";
const char* const kIdle = "Progress";

}  // namespace

// Shows how far a check is and lets events run meanwhile, which may end it.
class frmCheckData::Watcher final : public CrcWatcher {
  public:
    explicit Watcher(frmCheckData& window) : window_(window) {}

    // The end of an aborted check is not one of the whole.
    void DrawProgress(int percent) override {
        if (!window_.Aborted) {
            window_.DrawProgress(percent);
        }
    }

    [[nodiscard]] bool OnPause() override {
        if (window_.Aborted) {
            return false;
        }
        LetPendingEventsRun();
        wxMilliSleep(kPauseMs);
        return true;
    }

  private:
    frmCheckData& window_;
    FineTimer fineTimer_;
};

frmCheckData::frmCheckData(wxTopLevelWindow* main, const ProgramValues& values,
                           TemporaryFiles& files)
    : wxDialog(main, wxID_ANY, "Check Data Integrity"),
      values_(values),
      files_(files),
      messages_(this),
      units_(*this),
      tmrBlink(this) {
    SetName("frmCheckData");
    SetIcons(AppIcons());
    CreateControls();
    NameControls();
    PlaceControls();
    BindEvents();
    KeepCentered(*this, *main);
    cmdCheck->SetFocus();
}

void frmCheckData::CreateControls() {
    surface_ = new Surface(this);
    lblExplanation_ = new wxStaticText(surface_, wxID_ANY, kExplanation);
    lblMessage = new wxStaticText(surface_, wxID_ANY, kIdle, wxDefaultPosition, wxDefaultSize,
                                  wxST_NO_AUTORESIZE);
    picProgbar = new ProgressBar(surface_);
    resultArea_ = new Backdrop(surface_);
    imgResult = new wxStaticBitmap(resultArea_, wxID_ANY, PassedPicture());
    // Whose pictures a result takes.
    imgPassed = new wxStaticBitmap(resultArea_, wxID_ANY, PassedPicture());
    imgFailed = new wxStaticBitmap(resultArea_, wxID_ANY, FailedPicture());
    for (wxStaticBitmap* picture : {imgResult, imgPassed, imgFailed}) {
        picture->Hide();
    }
    lblResult = new wxStaticText(resultArea_, wxID_ANY, wxEmptyString, wxDefaultPosition,
                                 wxDefaultSize, wxST_NO_AUTORESIZE);
    lblResult->SetFont(GetFont().Bold().Larger());
    cmdCheck = new wxButton(surface_, wxID_ANY, "&Check");
    cmdCancel = new wxButton(surface_, wxID_ANY, "Cancel");
    cmdCheck->SetDefault();
    SetEscapeId(cmdCancel->GetId());
}

void frmCheckData::NameControls() {
    lblExplanation_->SetName("lblExplanation");
    lblMessage->SetName("lblMessage");
    SetNames(*picProgbar, "picProgbar", "Progress");
    SetNames(*imgResult, "imgResult", "Result");
    imgPassed->SetName("imgPassed");
    imgFailed->SetName("imgFailed");
    lblResult->SetName("lblResult");
    cmdCheck->SetName("cmdCheck");
    cmdCancel->SetName("cmdCancel");
}

void frmCheckData::PlaceControls() {
    const auto px = [this](double units) { return units_.Pixels(units); };
    const int gap = px(kMargin);
    auto* result = new wxBoxSizer(wxHORIZONTAL);
    result->Add(imgResult, 0, wxALIGN_CENTRE_VERTICAL | wxALL | wxRESERVE_SPACE_EVEN_IF_HIDDEN,
                px(6));
    result->Add(lblResult, 1, wxALIGN_CENTRE_VERTICAL | wxRIGHT | wxRESERVE_SPACE_EVEN_IF_HIDDEN,
                px(6));
    resultArea_->SetSizer(result);

    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->AddStretchSpacer();
    buttons->Add(cmdCheck, 0, wxRIGHT, gap);
    buttons->Add(cmdCancel);

    lblExplanation_->Wrap(px(kInnerWidth) - 3 * gap);
    auto* all = new wxBoxSizer(wxVERTICAL);
    all->Add(lblExplanation_, 0, wxEXPAND | wxALL, gap);
    all->Add(lblMessage, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, gap);
    picProgbar->SetMinSize({-1, px(kBarHeight)});
    all->Add(picProgbar, 0, wxEXPAND | wxLEFT | wxRIGHT, gap);
    all->Add(resultArea_, 0, wxEXPAND | wxALL, gap);
    all->Add(buttons, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, gap);
    FillWindow(*surface_, all, px(kInnerWidth));
}

void frmCheckData::BindEvents() {
    surface_->Bind(wxEVT_PAINT, &frmCheckData::OnPaint, this);
    Bind(wxEVT_CLOSE_WINDOW, &frmCheckData::OnClose, this);
    Bind(wxEVT_TIMER, [this](wxTimerEvent&) { lblResult->Show(!lblResult->IsShown()); });
    cmdCheck->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { RunCheck(); });
    cmdCancel->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { OnCancel(); });
}

void frmCheckData::OnPaint(wxPaintEvent& /*event*/) {
    wxPaintDC dc(surface_);
    DrawFrameRound(dc, picProgbar->GetRect());
}

bool frmCheckData::IsChecking() const {
    return !cmdCheck->IsEnabled();
}

void frmCheckData::DrawProgress(int percent) {
    constexpr int kSpokenStep = 10;
    if (percent % kSpokenStep == 0) {
        SetNames(*picProgbar, "picProgbar", "Progress " + std::to_string(percent) + "%");
    }
    picProgbar->SetPercent(percent);
}

void frmCheckData::ClearProgress() {
    SetNames(*picProgbar, "picProgbar", "Progress");
    picProgbar->Clear();
}

void frmCheckData::ClearResult() {
    tmrBlink.Stop();
    imgResult->Hide();
    lblResult->SetLabelText(wxEmptyString);
    lblResult->Show();
    resultArea_->SetBackgroundColour(wxNullColour);
    resultArea_->Refresh();
}

void frmCheckData::RunCheck() {
    const OnLeaving idle([this] { ReturnToIdle(); });
    cmdCancel->SetFocus();  // a disabled control would take the keyboard with it
    cmdCheck->Disable();
    Aborted = false;
    saysAborted_ = false;
    ClearResult();
    ClearProgress();
    lblMessage->SetLabelText("Checking data integrity...");
    PaintNow(*this);  // expanding a large file takes a moment
    bool passed = false;
    {
        Watcher watcher(*this);
        passed = IsDataIntact(values_, files_, watcher);
    }
    if (!Aborted) {
        ShowResult(passed);
    } else if (saysAborted_ && IsShown()) {
        messages_.Show(
            {"Check was aborted by user", kAppTitle, MessageIcon::Information, MessageButtons::Ok});
    }
}

void frmCheckData::ReturnToIdle() {
    if (lblResult->GetLabel().empty()) {
        ClearProgress();
        lblMessage->SetLabelText(kIdle);
    }
    cmdCheck->Enable();
    if (IsShown()) {
        cmdCheck->SetFocus();  // a disabled control could not keep it
    }
}

void frmCheckData::ShowResult(bool passed) {
    // The colours are meant for a light background.
    if (wxSystemSettings::GetAppearance().IsUsingDarkBackground()) {
        resultArea_->SetBackgroundColour(*wxWHITE);
    }
    imgResult->SetBitmap((passed ? imgPassed : imgFailed)->GetBitmap());
    imgResult->Show();
    lblResult->SetForegroundColour(passed ? wxColour(0, 0, 255) : wxColour(192, 0, 0));
    const char* const text = passed ? "Data integrity check PASSED" : "Data integrity check FAILED";
    lblResult->SetLabelText(text);
    SetNames(*imgResult, "imgResult", text);  // the text itself comes and goes
    resultArea_->Layout();
    resultArea_->Refresh();
    lblMessage->SetLabelText("Completed");
    tmrBlink.Start(kBlinkMs);
}

void frmCheckData::EndModal(int result) {
    tmrBlink.Stop();
    wxDialog::EndModal(result);
}

// A check that runs says so when it has ended.
void frmCheckData::OnCancel() {
    Aborted = true;
    if (IsChecking()) {
        saysAborted_ = true;
    } else if (IsModal()) {
        EndModal(wxID_CANCEL);
    }
}

// A check that runs ends with its next progress.
void frmCheckData::OnClose(wxCloseEvent& /*event*/) {
    Aborted = true;
    if (IsModal()) {
        EndModal(wxID_CANCEL);
    }
}

}  // namespace brelex
