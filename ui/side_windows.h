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

/// What the side windows need from the main window.
struct SideWindowEvents {
    std::function<void(RecordNumber)> goToRecord;     ///< selects an entry
    std::function<std::string_view()> selectedEntry;  ///< its record text; empty if there is none
    std::function<void(const std::string&)> openAddress;  ///< with the desktop's program for it

    /// Called with true before the first modal window opens, and with false after the last has
    /// closed.
    std::function<void(bool)> onModal;
};

/// The windows that open over the main window, one at a time: those numbered for OpenModalForm, and
/// the entry viewer. Two of them stay in memory, hidden, until the program ends, because they
/// remember the user's input.
class SideWindows {
  public:
    /// Marks the time during which something modal is shown: a window, a question or a message. A
    /// scope within another has no effect.
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

    /// All arguments except `events`, which is copied, must outlive this object.
    SideWindows(wxFrame& main, ProgramValues& values, TemporaryFiles& files,
                SideWindowEvents events);
    SideWindows(const SideWindows&) = delete;
    SideWindows& operator=(const SideWindows&) = delete;
    ~SideWindows() = default;

    /// Opens the side window with this number in kCommands and returns when it is closed. Opens
    /// nothing for any other number, or while something modal is shown.
    void OpenModalForm(int number);

    /// Does the same for the viewer of the selected entry. Requires a selected entry.
    void OpenEntryViewer();

    /// Brings the modal window over the main window to the front.
    void RaiseModal() const;

    /// Closes the main window as soon as nothing modal is left. Ends the open side window and
    /// anything modal over it. Questions and messages of the main window wait for the user.
    void CloseMainWhenNotModal();

    /// Destroys the windows that stay in memory.
    void UnloadOtherForms();

    bool IsModalOpen = false;  ///< something modal is shown, so the icon has no menu

  private:
    void ShowSearch();
    void ShowAnagram();
    void ShowOnce(wxDialog* window);

    wxFrame& main_;
    ProgramValues& values_;
    TemporaryFiles& files_;
    SideWindowEvents events_;
    frmSearch* search_ = nullptr;  // both created when first opened
    frmAnagram* anagram_ = nullptr;
    wxDialog* open_ = nullptr;  // the one that is open
    bool closesMain_ = false;
};

}  // namespace brelex
