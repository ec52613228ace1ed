// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <wx/frame.h>
#include <wx/timer.h>

#include "database/modDataLoader.h"
#include "lookup/lookup_box.h"
#include "platform/desktop/hot_key.h"
#include "platform/desktop/modSysTray.h"
#include "platform/desktop/wx_message_sink.h"
#include "platform/list/entry_list_control.h"
#include "platform/system/modShowHelp.h"
#include "ui/controls/hover_hints.h"
#include "ui/controls/layout_units.h"
#include "ui/main/help_key.h"
#include "ui/main/tray_behaviour.h"

class wxClipboardTextEvent;
class wxStaticText;
class wxTextCtrl;

namespace brelex {

class Surface;
class frmAnagram;
class frmSearch;
class frmSplash;
class TitleImage;
class Toolbar;
struct ToolbarEvents;

/// What frmMain loads with.
struct MainSurroundings {
    TemporaryFiles& files;    ///< must outlive the window
    Desktop& desktop;         ///< must outlive the window
    std::string programName;  ///< of the program file, without extension (UTF-8)
    MessageSink& messages;    ///< for messages before the window is shown
    std::function<float()> secondsSinceMidnight;
    std::string commandLine;                    ///< the whole argument text (UTF-8)
    std::function<bool(bool)> setRunAtStartup;  ///< registers the program for the log-on, or not
};

/// The main window: the lookup box over the list of all entries. Closing it ends the program.
class frmMain final : public wxFrame, private LookupView, private TrayOwner {
  public:
    /// `values` and `store` must outlive the window. `store` is still empty; Load fills it.
    frmMain(ProgramValues& values, RecordStore& store);
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;
    ~frmMain() override;

    /// Loads the database, reporting to the splash window, and gets the window ready to be shown.
    /// Returns false, after telling the user, if the database cannot be loaded.
    [[nodiscard]] bool Load(frmSplash& splash, const MainSurroundings& surroundings);

    /// The behaviour of the lookup; its fields are the window's state.
    [[nodiscard]] LookupBox& Lookup() { return lookup_; }

    [[nodiscard]] EntryListControl& List() { return *lstAcronyms; }

    /// Opens a side window (a number of side_windows.h) modally; any other number opens none.
    void OpenModalForm(int number) override;

    /// Shows a message that no command of the window is about.
    void ShowMessage(const Message& message);

    /// Selects an entry by its record number (1-based); -1 asks the user for it.
    void GoToRecordNumber(std::int32_t nRecordNumber);

    bool IsModalOpen = false;  ///< a modal window is up: the icon shows no menu
    bool IsStayOnTop = false;  ///< as checked in the menu

  private:
    class ModalScope;

    void CreateControls();
    void PlaceControls();
    void DrawColumnHeader();
    void LayoutStatusBar();
    void PlaceTitleImage();
    void BindEvents();
    void BindListEvents();
    void AddHints();
    [[nodiscard]] TrayEvents TrayEventsOfWindow();
    [[nodiscard]] bool HasTrayIcon() const;
    void TrayMenuChanged();
    void AddFrame(int left, int top, int width, int height);
    void UnloadOtherForms();
    void OpenEntryViewer();
    [[nodiscard]] std::string_view SelectedEntry() const;
    void ShowHelp(const std::string& page);
    [[nodiscard]] bool ShowHelpOf(const std::string& window);
    void ShowReadMe();
    void OpenAddress(const std::string& address);
    [[nodiscard]] ToolbarEvents EventsOfToolbar();
    void RunToolbarAction(int icon);
    void SetMaxBoxLength(std::size_t length);

    void OnPaint(wxPaintEvent& event);
    void OnMenu(wxCommandEvent& event);
    void OnClose(wxCloseEvent& event);
    void OnQueryEndSession(wxCloseEvent& event);
    void EndModalWindows();
    void OnBoxText(wxCommandEvent& event);
    void OnBoxKeyDown(wxKeyEvent& event);
    void OnBoxFocus(wxFocusEvent& event);
    void OnBoxPaste(wxClipboardTextEvent& event);
    void OnDoubleClick(wxMouseEvent& event);
    void OnIconize(wxIconizeEvent& event);
    void OnShow(wxShowEvent& event);
    void OnActivate(wxActivateEvent& event);
    void CatchUpWithSystem();
    void ShowListMenu(std::int32_t row, const std::function<void()>& popUp);
    void ShowListMenuAtMouse(std::int32_t row);
    void ShowListMenuAtRow();
    void OnCheckCommand(wxTimerEvent& event);

    /// Passes a pending change of the box's text on to the lookup.
    void FlushBoxChange();

    [[nodiscard]] std::int32_t SelectedRow() const override;
    void SelectRow(std::int32_t row) override;
    void SetTopRow(std::int32_t row) override;
    void SendKeyToList(NavigationKey key) override;
    [[nodiscard]] std::string BoxText() const override;
    void SetBoxText(const std::string& text) override;
    void MoveCaretToEnd() override;
    void SetRecordNumberText(const std::string& text) override;
    std::string AskText(const std::string& title, const std::string& prompt,
                        const std::string& defaultText) override;

    [[nodiscard]] bool IsWindowVisible() const override { return IsShown(); }

    [[nodiscard]] bool IsWindowMinimised() const override { return IsIconized() || !IsShown(); }

    [[nodiscard]] bool IsModalWindowOpen() const override { return IsModalOpen; }

    void RestoreWindow() override;
    void ActivateWindow() override;

    void MinimiseWindow() override;

    void Exit() override { Close(); }

    ProgramValues& values_;
    RecordStore& store_;
    WxMessageSink messages_;
    LookupBox lookup_;
    LayoutUnits units_;
    std::string commandLine_;
    wxSize inner_;                // of all that the window shows, in pixels
    std::vector<wxRect> frames_;  // the sunken frames that OnPaint draws
    bool boxChangePending_ = false;
    bool isListMenuOpen_ = false;
    bool closesWhenNotModal_ = false;
    bool caretStays_ = false;  // getting the focus next time selects nothing
    std::size_t maxBoxLength_ = 0;
    std::function<bool(bool)> setRunAtStartup_;
    TemporaryFiles* files_ = nullptr;
    Desktop* desktop_ = nullptr;
    std::string programName_;
    std::function<void(const std::string&)> openAddress_;
    bool isOpeningAddress_ = false;
    std::optional<HelpKey> helpKey_;
    std::optional<HoverHints> hints_;
    frmSearch* search_ = nullptr;  // made when they are first opened
    frmAnagram* anagram_ = nullptr;
    TrayBehaviour trayBehaviour_;
    std::unique_ptr<TrayIcon> trayIcon_;
    std::unique_ptr<ActivationHotKey> hotKey_;

    Surface* surface_ = nullptr;
    Toolbar* picToolbar = nullptr;
    wxWindow* lblAppTitle = nullptr;
    TitleImage* imgAppTitle = nullptr;
    wxStaticText* lblInstruction = nullptr;
    wxTextCtrl* txtAbbrv = nullptr;
    wxWindow* lblColHeaderBack = nullptr;
    wxWindow* picColHeader = nullptr;
    EntryListControl* lstAcronyms = nullptr;
    wxStaticText* lblRecNumber = nullptr;
    wxStaticText* lblDescription = nullptr;
    wxStaticText* lblRecCount = nullptr;
    wxTimer tmrCheckCommand;
};

}  // namespace brelex
