// SPDX-License-Identifier: MIT
#include "platform/system/modShowHelp.h"

#include <string>

#include "base/app_info.h"
#include "base/file_io.h"

namespace brelex {

namespace {

bool ShowInOpenViewer(Desktop& desktop, const std::string& page) {
    if (!desktop.BringWindowForward(kHelpTitle)) {
        return false;
    }
    if (!page.empty()) {
        desktop.TurnToPage(kHelpTitle, page);
    }
    return true;
}

}  // namespace

void ShowHelpContents(const ProgramPlace& place, Desktop& desktop, MessageSink& messages,
                      const std::string& page) {
    const auto help = FindFileIgnoringCase(place.folder, kHelpFileName);
    if (!help) {
        messages.Show({std::string("Cannot find the Help file ") + kHelpFileName +
                           ". Ensure that the file exists on your disk. Otherwise you may need to "
                           "reinstall " +
                           place.name + ".",
                       kAppTitle, MessageIcon::Information, MessageButtons::Ok});
    } else if (!ShowInOpenViewer(desktop, page) &&
               !desktop.StartHelpViewer(place.folder, *help, page) && !desktop.Open(*help)) {
        messages.Show(
            {"Cannot find the associated application to open the Help file. Unable to "
             "display Help.",
             kAppTitle, MessageIcon::Information, MessageButtons::Ok});
    }
}

void CloseHelp(Desktop& desktop) {
    desktop.AskWindowToClose(kHelpTitle);
}

void OpenReadMe(const ProgramPlace& place, Desktop& desktop, MessageSink& messages) {
    if (const auto readMe = FindFileIgnoringCase(place.folder, kReadMeFileName)) {
        desktop.OpenToRead(*readMe);
    } else {
        messages.Show({std::string("Cannot find file \"") + kReadMeFileName + "\"", kAppTitle,
                       MessageIcon::Stop, MessageButtons::Ok});
    }
}

}  // namespace brelex
