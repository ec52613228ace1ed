// SPDX-License-Identifier: MIT
#include "ui/side_windows.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include <wx/dialog.h>
#include <wx/frame.h>

#include "base/scope.h"
#include "presentation/commands.h"
#include "ui/frmAbout.h"
#include "ui/frmAnagram.h"
#include "ui/frmCheckData.h"
#include "ui/frmDataInfo.h"
#include "ui/frmDonation.h"
#include "ui/frmSearch.h"
#include "ui/frmSmiley.h"
#include "ui/frmViewEntry.h"

namespace brelex {

namespace {

// The modal window directly over a window; null if there is none.
wxDialog* ModalOver(const wxWindow& window) {
    for (wxWindow* child : window.GetChildren()) {
        auto* const dialog = dynamic_cast<wxDialog*>(child);
        if (dialog != nullptr && dialog->IsModal()) {
            return dialog;
        }
    }
    return nullptr;
}

}  // namespace

SideWindows::ModalScope::ModalScope(SideWindows& windows)
    : windows_(windows),
      outermost_(!std::exchange(windows.IsModalOpen, true)) {
    if (outermost_) {
        windows_.events_.onModal(true);
    }
}

SideWindows::ModalScope::~ModalScope() {
    if (outermost_) {
        windows_.IsModalOpen = false;
        windows_.events_.onModal(false);
        if (windows_.closesMain_) {
            windows_.main_.CallAfter([&main = windows_.main_] { main.Close(true); });
        }
    }
}

SideWindows::SideWindows(wxFrame& main, ProgramValues& values, TemporaryFiles& files,
                         SideWindowEvents events)
    : main_(main),
      values_(values),
      files_(files),
      events_(std::move(events)) {}

void SideWindows::OpenModalForm(int number) {
    const auto* const details =
        std::find_if(kCommands.begin(), kCommands.end(), [number](const CommandDetails& command) {
            return command.kind == CommandKind::Window && command.window == number;
        });
    if (details == kCommands.end() || IsModalOpen) {
        return;  // a window that was just closed may still have to end a search
    }
    const ModalScope modal(*this);
    switch (details->command) {
        case Command::Search:
            ShowSearch();
            break;
        case Command::Anagram:
            ShowAnagram();
            break;
        case Command::DatabaseInfo:
            ShowOnce(new frmDataInfo(&main_, values_));
            break;
        case Command::Smileys:
            ShowOnce(new frmSmiley(&main_, values_.info));
            break;
        case Command::About:
            ShowOnce(new frmAbout(&main_, values_, events_.openAddress));
            break;
        case Command::CheckData:
            ShowOnce(new frmCheckData(&main_, values_, files_));
            break;
        case Command::Donate:
            ShowOnce(new frmDonation(&main_, values_.info, events_.openAddress));
            break;
        default:
            break;
    }
}

void SideWindows::OpenEntryViewer() {
    if (IsModalOpen) {
        return;
    }
    const ModalScope modal(*this);
    ShowOnce(new frmViewEntry(&main_, events_.selectedEntry, values_.info));
}

void SideWindows::ShowSearch() {
    if (search_ == nullptr) {
        search_ = new frmSearch(&main_, values_);
    }
    open_ = search_;
    const OnLeaving closed([this] { open_ = nullptr; });
    search_->ShowSearchWindow();
}

void SideWindows::ShowAnagram() {
    if (anagram_ == nullptr) {
        anagram_ = new frmAnagram(&main_, values_, [this](std::int32_t recordNumber) {
            events_.goToRecord(RecordNumber{recordNumber});
        });
    }
    open_ = anagram_;
    const OnLeaving closed([this] { open_ = nullptr; });
    anagram_->ShowAnagramWindow();
}

// Shows a window that is created for a single use.
void SideWindows::ShowOnce(wxDialog* window) {
    open_ = window;
    const OnLeaving closed([this] { open_ = nullptr; });
    window->ShowModal();
    window->Destroy();
}

void SideWindows::RaiseModal() const {
    wxDialog* topmost = nullptr;
    for (wxDialog* over = ModalOver(main_); over != nullptr; over = ModalOver(*over)) {
        topmost = over;
    }
    if (topmost != nullptr) {
        topmost->Raise();
    }
}

void SideWindows::CloseMainWhenNotModal() {
    closesMain_ = true;
    for (wxDialog* window = open_; window != nullptr; window = ModalOver(*window)) {
        if (window->IsModal()) {
            window->Close(true);
        }
    }
}

void SideWindows::UnloadOtherForms() {
    for (wxDialog* window : std::initializer_list<wxDialog*>{search_, anagram_}) {
        if (window != nullptr) {
            window->Destroy();
        }
    }
}

}  // namespace brelex
