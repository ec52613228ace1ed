// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include <wx/frame.h>
#include <wx/iconbndl.h>
#include <wx/timer.h>

#include "base/message_sink.h"
#include "base/temporary_files.h"
#include "database/program_values.h"
#include "database/record_number.h"
#include "platform/desktop/entry_requests.h"
#include "platform/system/modShowHelp.h"
#include "presentation/commands.h"
#include "ui/controls/layout_units.h"
#include "ui/main/documents.h"
#include "ui/main/lookup_panel.h"
#include "ui/main/status_strip.h"
#include "ui/main/title_area.h"
#include "ui/main/tray_presence.h"
#include "ui/side_windows.h"

namespace brelex {

class Surface;
class Toolbar;

/// What the main window needs from outside.
struct MainSurroundings {
    TemporaryFiles& files;    ///< must outlive the window
    Desktop& desktop;         ///< must outlive the window
    std::string programName;  ///< see ProgramName
    std::string commandLine;  ///< the whole argument text, UTF-8

    /// Registers a program, given its folder and name, to run at log-on, or removes the
    /// registration. See SetRunAtStartup.
    std::function<bool(const std::string&, const std::string&, bool)> setRunAtStartup;
};

/// The main window: the look-up box over the list of all entries. It puts its parts together, lays
/// them out and runs the commands. Closing it ends the program.
class frmMain final : public wxFrame {
  public:
    /// The database is loaded into `values`, which must outlive the window. When this returns, the
    /// window is ready to be shown, its icon is in place, and the program is registered to run at
    /// log-on.
    frmMain(ProgramValues& values, const MainSurroundings& surroundings);
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;
    ~frmMain() override;

    /// Runs a command. No other code knows what each command does.
    void Run(Command command);

    /// Closes the help, which otherwise closes with this window.
    void CloseHelpViewer() { documents_.CloseHelpViewer(); }

    /// Opens a side window modally, by its number in kCommands. Opens nothing for any other number.
    void OpenModalForm(int number) { sideWindows_.OpenModalForm(number); }

    /// Whether something modal is shown.
    [[nodiscard]] bool IsModalOpen() const { return sideWindows_.IsModalOpen; }

    /// Shows a message that does not belong to any command of the window.
    void ShowMessage(const Message& message);

    /// Selects an entry. kAskForRecord asks the user for its number.
    void GoToRecordNumber(RecordNumber nRecordNumber);

    /// The behavior of the look-up. Its fields are the window's state.
    [[nodiscard]] LookupBox& Lookup() { return lookup_.Behavior(); }

    [[nodiscard]] EntryListControl& List() { return lookup_.List(); }

    bool IsStayOnTop = false;  ///< as checked in the menu

  private:
    void PlaceControls();
    void BindEvents();

    void OnModal(bool begins);
    void ExplainMenu(const wxMenuEvent& event);
    void CheckStayOnTop(bool stays);
    void CheckRunAtStartup(bool runs);
    void PopUpListMenu(const wxPoint& place);
    [[nodiscard]] EntryRequestEvents EventsOfRequests();
    void ShowRequested(const std::string& id);
    void CopyRequested(const std::string& id);
    [[nodiscard]] std::string_view SelectedEntry() const;

    void OnShow(wxShowEvent& event);
    void OnDoubleClick(wxMouseEvent& event);
    void OnClose(wxCloseEvent& event);
    void OnQueryEndSession(wxCloseEvent& event);
    void OnCheckCommand(wxTimerEvent& event);

    ProgramValues& values_;
    MainSurroundings surroundings_;
    LayoutUnits units_;
    bool runsAtStartup_ = false;  // as checked in the menu

    Surface* surface_;
    Toolbar* picToolbar;
    TitleArea title_;
    LookupPanel lookup_;
    StatusStrip status_;
    Documents documents_;
    SideWindows sideWindows_;
    wxIconBundle icons_;
    TrayPresence tray_;
    wxTimer tmrCheckCommand;
    EntryRequests requests_;
};

}  // namespace brelex
