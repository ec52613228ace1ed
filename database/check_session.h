// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "base/long_work.h"
#include "base/message_sink.h"
#include "base/temporary_files.h"
#include "database/program_values.h"

namespace brelex {

/// What a check of the data has found out.
enum class CheckResult {
    None,
    Passed,
    Failed
};

/// What the check window shows. Texts are UTF-8.
struct CheckDisplay {
    bool isChecking = false;  ///< takes no second check
    std::string message = "Progress";
    std::optional<int> percent;  ///< of the progress bar, which is empty without
    CheckResult result = CheckResult::None;
    std::string resultText;  ///< blinks until it changes

    bool operator==(const CheckDisplay&) const = default;
};

/// Where the keyboard goes in the check window.
enum class CheckFocus {
    CheckButton,
    CancelButton
};

/// The check window as its session sees it.
class CheckView {
  public:
    CheckView() = default;
    CheckView(const CheckView&) = delete;
    CheckView& operator=(const CheckView&) = delete;
    virtual ~CheckView() = default;

    /// Shows all this. What tells of a check is on the screen when this returns.
    virtual void ShowDisplay(const CheckDisplay& display) = 0;

    virtual void MoveFocus(CheckFocus focus) = 0;

    /// Lets all waiting events be handled, and then rests for a while.
    virtual void LetEventsRun(int restMs) = 0;

    virtual void CloseWindow() = 0;
};

/// What the window "Check Data Integrity" does: it decides, and the window shows it and passes on
/// what the user does. It lives as long as the window, which is made for one use.
class CheckSession final : private WorkWatcher {
  public:
    /// All must outlive the session; the database is loaded.
    CheckSession(const ProgramValues& values, TemporaryFiles& files, CheckView& view,
                 MessageSink& messages)
        : values_(values),
          files_(files),
          view_(view),
          messages_(messages) {}

    /// The window is about to be shown.
    void Open();

    void RunCheck();

    /// The button that ends a check that runs, which says so then, and otherwise closes the window.
    void PressCancel();

    /// The window closes, by its close box or with the program: a check ends, and shows nothing any
    /// more.
    void Close();

    /// Whether the user has ended the check.
    [[nodiscard]] bool Aborted() const {
        return state_ == WorkState::Stopping || state_ == WorkState::Dismissed;
    }

  private:
    void SetProgress(int percent) override;
    bool OnPause() override;

    void ShowResult(CheckResult result);
    void ReturnToIdle();
    void Refresh();

    const ProgramValues& values_;
    TemporaryFiles& files_;
    CheckView& view_;
    MessageSink& messages_;
    CheckDisplay display_;
    WorkState state_ = WorkState::Idle;
};

}  // namespace brelex
