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

/// What the program starts with.
struct StartUpSurroundings : MainSurroundings {
    MessageSink& messages;  ///< for messages before there is a main window
    FolderPicker& picker;
    std::string programFolder;  ///< UTF-8
    std::function<float()> secondsSinceMidnight;
};

/// Starts the program in its order and owns what all windows share. Must outlive them.
class StartUp {
  public:
    /// Refuses a second copy, locates the database, loads it behind the splash window and makes the
    /// main window. Returns that, ready to be shown, or null if the program has to end; the user
    /// has been told why then. Call once.
    [[nodiscard]] frmMain* Run(const StartUpSurroundings& surroundings);

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
