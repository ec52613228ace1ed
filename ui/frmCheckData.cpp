// SPDX-License-Identifier: MIT
#include "ui/frmCheckData.h"

#include <utility>

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include "platform/window/accessible_name.h"
#include "platform/window/paint_now.h"
#include "toolkit/pending_events.h"
#include "toolkit/wx_text.h"
#include "ui/controls/artwork.h"
#include "ui/controls/backdrop.h"
#include "ui/controls/colours.h"
#include "ui/controls/progress_bar.h"
#include "ui/controls/surface.h"

namespace brelex {

namespace {

// The layout, in layout units.
constexpr double kInnerWidth = 440;
constexpr double kBarHeight = 24;

constexpr int kBlinkMs = 500;

const char* const kExplanation =
    "Checks data integrity of the database. The integrity check will fail even if a single letter "
    "in the database has changed. It may be due to a corrupt installation file or a bad sector on "
    "your disk.";

wxStaticText* NewLabel(wxWindow* parent) {
    return new wxStaticText(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                            wxST_NO_AUTORESIZE);
}

}  // namespace

frmCheckData::frmCheckData(wxTopLevelWindow* main, const ProgramValues& values,
                           TemporaryFiles& files)
    : SideWindow(*main, "frmCheckData", "Check Data Integrity"),
      session_(values, files, *this, messages_),
      tmrBlink(this) {
    CreateControls();
    PlaceControls();
    BindEvents();
    StopWithWindow(tmrBlink);
    session_.Open();
}

void frmCheckData::CreateControls() {
    lblExplanation_ = Named(new wxStaticText(surface_, wxID_ANY, kExplanation), "lblExplanation");
    lblMessage = Named(NewLabel(surface_), "lblMessage");
    picProgbar = Named(new ProgressBar(surface_), "picProgbar");
    surface_->FrameChild(*picProgbar);
    resultArea_ = new Backdrop(surface_);
    imgResult = Named(new wxStaticBitmap(resultArea_, wxID_ANY, PassedPicture()), "imgResult");
    // imgResult takes its picture from one of these two, which stay hidden.
    imgPassed = Named(new wxStaticBitmap(resultArea_, wxID_ANY, PassedPicture()), "imgPassed");
    imgFailed = Named(new wxStaticBitmap(resultArea_, wxID_ANY, FailedPicture()), "imgFailed");
    for (wxStaticBitmap* picture : {imgResult, imgPassed, imgFailed}) {
        picture->Hide();
    }
    lblResult = Named(NewLabel(resultArea_), "lblResult");
    lblResult->SetFont(GetFont().Bold().Larger());
    cmdCheck = Named(new wxButton(surface_, wxID_ANY, "&Check"), "cmdCheck");
    cmdCancel = Named(new wxButton(surface_, wxID_ANY, "Cancel"), "cmdCancel");
    cmdCheck->SetDefault();
    SetEscapeId(cmdCancel->GetId());
}

void frmCheckData::PlaceControls() {
    const auto px = [this](double units) { return units_.Pixels(units); };
    const int gap = px(kWindowMargin);
    auto* result = new wxBoxSizer(wxHORIZONTAL);
    result->Add(
        imgResult, 0,
        wxALIGN_CENTRE_VERTICAL | wxTOP | wxRIGHT | wxBOTTOM | wxRESERVE_SPACE_EVEN_IF_HIDDEN,
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
    FillWindow(all, px(kInnerWidth));
}

void frmCheckData::BindEvents() {
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { session_.Close(); });
    Bind(wxEVT_TIMER, [this](wxTimerEvent&) { OnBlink(); });
    cmdCheck->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { session_.RunCheck(); });
    cmdCancel->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { session_.PressCancel(); });
}

void frmCheckData::ShowDisplay(const CheckDisplay& display) {
    const auto last = std::exchange(shown_, display);
    const auto isNew = [&](auto part) { return !last || (*last).*part != display.*part; };
    cmdCheck->Enable(!display.isChecking);
    if (isNew(&CheckDisplay::message)) {
        lblMessage->SetLabelText(WxText(display.message));
    }
    if (isNew(&CheckDisplay::percent)) {
        DrawProgress(display.percent);
    }
    if (isNew(&CheckDisplay::result)) {
        ShowResult(display);
    }
    if (isNew(&CheckDisplay::isChecking)) {
        if (display.isChecking) {
            fineTimer_.emplace();
            PaintNow(*this);  // expanding a large file takes a moment
        } else {
            fineTimer_.reset();
        }
    }
}

void frmCheckData::DrawProgress(std::optional<int> percent) {
    if (percent) {
        picProgbar->SetPercent(*percent);
    } else {
        picProgbar->Clear();
    }
}

void frmCheckData::ShowResult(const CheckDisplay& display) {
    const bool isThere = display.result != CheckResult::None;
    const bool passed = display.result == CheckResult::Passed;
    imgResult->SetBitmap((passed ? imgPassed : imgFailed)->GetBitmap());
    imgResult->Show(isThere);
    // The text itself appears and disappears.
    SetSpokenName(*imgResult, isThere ? display.resultText : "Result");
    if (isThere) {
        Announce(*imgResult);
    }
    SetSpokenDescription(*cmdCheck, wxEmptyString);  // until it has the focus again
    const wxColour ground = lblResult->GetBackgroundColour();
    lblResult->SetForegroundColour(passed ? BlueOn(ground) : DarkRedOn(ground));
    lblResult->SetLabelText(WxText(display.resultText));
    lblResult->Show();
    isBlinkedOut_ = false;
    resultArea_->Layout();
    resultArea_->Refresh();
    if (isThere) {
        tmrBlink.Start(kBlinkMs);
    } else {
        tmrBlink.Stop();
    }
}

void frmCheckData::OnBlink() {
    isBlinkedOut_ = !isBlinkedOut_;
    lblResult->Show(!isBlinkedOut_);
}

void frmCheckData::MoveFocus(CheckFocus focus) {
    (focus == CheckFocus::CheckButton ? cmdCheck : cmdCancel)->SetFocus();
    if (focus == CheckFocus::CheckButton && shown_) {
        // Some readers hear only of what has the focus, once they know that it has it.
        CallAfter([this, result = WxText(shown_->resultText)] {
            SetSpokenDescription(*cmdCheck, result);
        });
    }
}

void frmCheckData::LetEventsRun(int restMs) {
    LetPendingEventsRun(restMs);
}

void frmCheckData::CloseWindow() {
    if (IsModal()) {
        EndModal(wxID_CANCEL);
    }
}

}  // namespace brelex
