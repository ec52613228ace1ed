// SPDX-License-Identifier: MIT
#include "ui/main/documents.h"

#include <string_view>
#include <utility>

#include "base/scope.h"
#include "platform/desktop/wx_message_sink.h"
#include "presentation/help_pages.h"
#include "toolkit/pending_events.h"

namespace brelex {

Documents::Documents(wxWindow& owner, ProgramPlace place, Desktop& desktop, WhileModal whileModal)
    : owner_(owner),
      place_(std::move(place)),
      desktop_(desktop),
      whileModal_(std::move(whileModal)),
      helpKey_([this](const std::string& window) { return ShowHelpOf(window); }) {}

void Documents::ShowHelp(const std::string& page) {
    whileModal_([&] {
        WxMessageSink messages(nullptr);  // over the window in front
        ShowHelpContents(place_, desktop_, messages, page);
    });
}

// In the main window, the key belongs to the menu. In a window of another program, such as a folder
// browser, no key is ours.
bool Documents::ShowHelpOf(const std::string& window) {
    const std::string_view page = HelpPageOf(window);
    if (window == "frmMain" || page.empty()) {
        return false;
    }
    ShowHelp(std::string(page));
    return true;
}

void Documents::ShowReadMe() {
    whileModal_([&] {
        WxMessageSink messages(&owner_);
        OpenReadMe(place_, desktop_, messages);
    });
}

void Documents::OpenAddress(const std::string& address) {
    if (isOpeningAddress_) {
        return;  // the events that run here may ask for it again
    }
    const Busy busy(isOpeningAddress_);
    desktop_.Open(address);
    LetPendingEventsRun();
}

void Documents::CloseHelpViewer() {
    CloseHelp(desktop_);
}

}  // namespace brelex
