// SPDX-License-Identifier: MIT
#include "database/check_session.h"

#include "base/scope.h"
#include "database/integrity_check.h"

namespace brelex {

void CheckSession::Refresh() {
    display_.isChecking = state_ != WorkState::Idle;
    view_.ShowDisplay(display_);
}

void CheckSession::Open() {
    Refresh();
    view_.MoveFocus(CheckFocus::CheckButton);
}

void CheckSession::RunCheck() {
    const OnLeaving idle([this] { ReturnToIdle(); });
    state_ = WorkState::Running;
    display_ = {};
    display_.message = "Checking data integrity...";
    view_.MoveFocus(CheckFocus::CancelButton);  // a disabled button would take the keyboard with it
    Refresh();
    const bool passed = IsDataIntact(values_, files_, *this);
    if (state_ == WorkState::Running) {
        ShowResult(passed ? CheckResult::Passed : CheckResult::Failed);
    } else if (state_ == WorkState::Stopping) {
        messages_.Show(
            {"Check was aborted by user", kAppTitle, MessageIcon::Information, MessageButtons::Ok});
    }
}

// The end of an aborted check is not one of the whole.
void CheckSession::SetProgress(int percent) {
    if (state_ == WorkState::Running) {
        display_.percent = percent;
        Refresh();
    }
}

bool CheckSession::OnPause() {
    view_.LetEventsRun(kPauseMs);
    return state_ == WorkState::Running;
}

void CheckSession::ShowResult(CheckResult result) {
    const bool passed = result == CheckResult::Passed;
    display_.result = result;
    display_.resultText = passed ? "Data integrity check PASSED" : "Data integrity check FAILED";
    display_.message = "Completed";
    Refresh();
}

void CheckSession::ReturnToIdle() {
    const bool wasDismissed = state_ == WorkState::Dismissed;
    state_ = WorkState::Idle;
    if (display_.result == CheckResult::None) {
        display_ = {};
    }
    Refresh();
    if (!wasDismissed) {
        view_.MoveFocus(CheckFocus::CheckButton);  // the disabled one could not keep it
    }
}

void CheckSession::PressCancel() {
    if (state_ == WorkState::Idle) {
        view_.CloseWindow();
    } else if (state_ == WorkState::Running) {
        state_ = WorkState::Stopping;
    }
}

void CheckSession::Close() {
    if (state_ != WorkState::Idle) {
        state_ = WorkState::Dismissed;
    }
    view_.CloseWindow();
}

}  // namespace brelex
