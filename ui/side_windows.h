// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/temporary_files.h"
#include "database/program_values.h"
#include "database/record_number.h"

class wxDialog;
class wxFrame;

namespace brelex {

class frmAnagram;
class frmSearch;

/// What the side windows ask of the main window.
struct SideWindowEvents {
    std::function<void(RecordNumber)> goToRecord;     ///< selects an entry
    std::function<std::string_view()> selectedEntry;  ///< its record text; empty if there is none
    std::function<void(const std::string&)> openAddress;  ///< with the desktop's program for it

    /// The first modal window is about to open, or the last has closed.
    std::function<void(bool)> onModal;
};

/// The windows that open over the main window, one at a time: those that OpenModalForm numbers, and
/// the viewer of an entry. Two of them are kept while the program runs, hidden, for what they
/// remember.
class SideWindows {
  public:
    /// The time that something modal is up: a window, a question or a message. Within one, another
    /// changes nothing.
    class ModalScope {
      public:
        explicit ModalScope(SideWindows& windows);
        ModalScope(const ModalScope&) = delete;
        ModalScope& operator=(const ModalScope&) = delete;
        ~ModalScope();

      private:
        SideWindows& windows_;
        bool outermost_;
    };

    /// All but `events`, which is copied, must outlive this.
    SideWindows(wxFrame& main, ProgramValues& values, TemporaryFiles& files,
                SideWindowEvents events);
    SideWindows(const SideWindows&) = delete;
    SideWindows& operator=(const SideWindows&) = delete;
    ~SideWindows() = default;

    /// Opens the window with a number of kCommands and returns when it is closed; any other number
    /// opens none. Nor does any while something modal is up.
    void OpenModalForm(int number);

    /// The same for the viewer of the selected entry. There must be one.
    void OpenEntryViewer();

    /// Brings what is modal over the main window to the front.
    void RaiseModal() const;

    /// Closes the main window as soon as nothing is modal any more. Ends the open window, and what
    /// is modal over it; questions and messages of the main window wait for the user.
    void CloseMainWhenNotModal();

    /// Destroys the windows that are kept.
    void UnloadOtherForms();

    bool IsModalOpen = false;  ///< something modal is up: the icon shows no menu

  private:
    void ShowSearch();
    void ShowAnagram();
    void ShowOnce(wxDialog* window);

    wxFrame& main_;
    ProgramValues& values_;
    TemporaryFiles& files_;
    SideWindowEvents events_;
    frmSearch* search_ = nullptr;  // made when they are first opened
    frmAnagram* anagram_ = nullptr;
    wxDialog* open_ = nullptr;  // the one that is up
    bool closesMain_ = false;
};

}  // namespace brelex
