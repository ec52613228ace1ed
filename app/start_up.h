// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/folder_picker.h"
#include "base/message_sink.h"
#include "database/program_values.h"
#include "database/record_store.h"
#include "platform/system/instance_guard.h"
#include "ui/frmMain.h"

namespace brelex {

class frmSplash;

/// Everything that the program needs in order to start.
struct StartUpSurroundings : MainSurroundings {
    MessageSink& messages;  ///< shows messages before there is a main window
    FolderPicker& picker;
    std::string programFolder;  ///< UTF-8
    std::function<float()> secondsSinceMidnight;
};

/// Starts the program step by step and owns the values that all windows share. It must outlive the
/// windows.
class StartUp {
  public:
    /// Refuses a second copy, locates the database, loads it behind the splash window and creates
    /// the main window. Returns that window ready to be shown, or null if the program has to end;
    /// in that case the user has already been told why. Call once.
    [[nodiscard]] frmMain* Run(const StartUpSurroundings& surroundings);

    /// Lets another copy start. Requires that this one ends without doing anything else.
    void GiveUpPlace() { instance_.reset(); }

    [[nodiscard]] const ProgramValues& Values() const { return values_; }

  private:
    [[nodiscard]] bool IsFirstCopy(MessageSink& messages);
    void SetValues();
    [[nodiscard]] bool Load(frmSplash& splash, const StartUpSurroundings& surroundings);

    std::unique_ptr<InstanceGuard> instance_;
    ProgramValues values_;
    RecordStore store_;
};

}  // namespace brelex
