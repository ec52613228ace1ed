// SPDX-License-Identifier: MIT
#include "database/locate_database.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "database/file_io.h"

namespace brelex {

namespace {

namespace fs = std::filesystem;

char FoldAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsDatabaseName(std::string_view name) {
    const std::string_view wanted = kDatabaseName;
    return std::equal(name.begin(), name.end(), wanted.begin(), wanted.end(),
                      [](char a, char b) { return FoldAscii(a) == FoldAscii(b); });
}

bool IsFile(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

std::string CannotFind() {
    return std::string(kAppTitle) + " cannot find the '" + kDatabaseName + "' database file.";
}

bool AskYesNo(MessageSink& messages, std::string text) {
    return messages.Show({std::move(text), kAppTitle, MessageIcon::Question,
                          MessageButtons::YesNo}) == MessageAnswer::Yes;
}

}  // namespace

std::optional<std::string> FindDatabaseIn(const std::string& folder) {
    const std::string usual = folder + kDatabaseName;
    if (IsFile(PathOfUtf8(usual))) {
        return usual;
    }
    std::optional<std::string> found;
    std::error_code error;
    for (fs::directory_iterator entry(PathOfUtf8(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = Utf8OfPath(entry->path().filename());
        // Of several spellings always the same one, whatever order the system lists them in.
        if (IsDatabaseName(name) && IsFile(entry->path()) && (!found || folder + name < *found)) {
            found = folder + name;
        }
    }
    return found;
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
