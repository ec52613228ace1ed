// SPDX-License-Identifier: MIT
#include "database/locate_database.h"

#include <utility>

#include "base/file_io.h"

namespace brelex {

namespace {

std::string CannotFind() {
    return std::string(kAppTitle) + " cannot find the '" + kDatabaseName + "' database file.";
}

bool AskYesNo(MessageSink& messages, std::string text) {
    return messages.Show({std::move(text), kAppTitle, MessageIcon::Question,
                          MessageButtons::YesNo}) == MessageAnswer::Yes;
}

}  // namespace

std::optional<std::string> FindDatabaseIn(const std::string& folder) {
    return FindFileIgnoringCase(folder, kDatabaseName);
}

bool LocateDatabase(ProgramValues& values, const std::string& programFolder, FolderPicker& picker,
                    MessageSink& messages) {
    values.AppFolder = WithTrailingSeparator(programFolder);
    values.DatabasePath = values.AppFolder + kDatabaseName;
    if (const auto found = FindDatabaseIn(values.AppFolder)) {
        values.DatabasePath = *found;
        return true;
    }
    if (!AskYesNo(messages, CannotFind() + " Do you want to try to find this yourself?")) {
        messages.Show({CannotFind() +
                           " Check to see that the file exists on your disk. If it doesn't, you "
                           "need to reinstall " +
                           kAppTitle + ".",
                       kAppTitle, MessageIcon::Stop, MessageButtons::Ok});
        return false;
    }
    while (true) {
        const std::string folder =
            picker.BrowseForFolder(std::string("Location of ") + kDatabaseName);
        if (folder.empty()) {
            return false;
        }
        values.DatabasePath = folder + kDatabaseName;
        if (const auto found = FindDatabaseIn(folder)) {
            values.DatabasePath = *found;
            return true;
        }
        if (!AskYesNo(messages, std::string(kAppTitle) + " could not find the '" + kDatabaseName +
                                    "' database file in " + folder +
                                    "\n\nDo you want to try again?")) {
            return false;
        }
    }
}

}  // namespace brelex
