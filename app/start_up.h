// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/folder_picker.h"
#include "base/message_sink.h"
#include "base/temporary_files.h"
#include "database/program_values.h"
#include "database/record_store.h"
#include "platform/system/instance_guard.h"
#include "platform/system/modShowHelp.h"

namespace brelex {

class frmMain;

/// What the program starts with.
struct StartUpSurroundings {
    MessageSink& messages;
    FolderPicker& picker;
    TemporaryFiles& files;      ///< must outlive the windows
    Desktop& desktop;           ///< must outlive the windows
    std::string programName;    ///< see ProgramName
    std::string programFolder;  ///< UTF-8
    std::string commandLine;    ///< the whole argument text, UTF-8
    std::function<float()> secondsSinceMidnight;

    /// Registers the program of a folder and a name for the log-on, or no longer; see
    /// SetRunAtStartup.
    std::function<bool(const std::string&, const std::string&, bool)> setRunAtStartup;
};

/// Starts the program in its order and owns what all windows share. Must outlive them.
class StartUp {
  public:
    /// Refuses a second copy, locates the database, loads it behind the splash window. Returns the
    /// main window, ready to be shown, or null if the program has to end; the user has been told
    /// why then. Call once.
    [[nodiscard]] frmMain* Run(const StartUpSurroundings& surroundings);

    [[nodiscard]] const ProgramValues& Values() const { return values_; }

  private:
    std::unique_ptr<InstanceGuard> instance_;
    ProgramValues values_;
    RecordStore store_;
};

}  // namespace brelex
