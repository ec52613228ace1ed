// SPDX-License-Identifier: MIT
#include "platform/modShowHelp.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

#include "database/file_io.h"
#include "database/program_values.h"

namespace brelex {

namespace {

char SmallLetter(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool SameNameIgnoringCase(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return SmallLetter(a) == SmallLetter(b); });
}

// The path of a file in a folder, whatever the case of its name, best the very name. Folders are no
// files.
std::optional<std::string> FindFile(const std::string& folder, std::string_view name) {
    std::error_code error;
    std::optional<std::string> found;
    std::filesystem::directory_iterator file(PathOfUtf8(folder), error);
    for (; !error && file != std::filesystem::directory_iterator(); file.increment(error)) {
        std::error_code unknown;
        const std::string fileName = Utf8OfPath(file->path().filename());
        if (SameNameIgnoringCase(fileName, name) && file->is_regular_file(unknown) &&
            (!found || fileName == name)) {
            found = Utf8OfPath(file->path());
        }
    }
    return found;
}

}  // namespace

void ShowHelpContents(const ProgramPlace& place, Desktop& desktop, MessageSink& messages) {
    const auto help = FindFile(place.folder, kHelpFileName);
    if (!help) {
        messages.Show({std::string("Cannot find the Help file ") + kHelpFileName +
                           ". Ensure that the file exists on your disk. Otherwise you may need to "
                           "reinstall " +
                           place.name + ".",
                       kAppTitle, MessageIcon::Information, MessageButtons::Ok});
    } else if (!desktop.BringWindowForward(kHelpTitle) && !desktop.Open(*help)) {
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
    if (const auto readMe = FindFile(place.folder, kReadMeFileName)) {
        desktop.OpenToRead(*readMe);
    } else {
        messages.Show({std::string("Cannot find file \"") + kReadMeFileName + "\"", kAppTitle,
                       MessageIcon::Stop, MessageButtons::Ok});
    }
}

}  // namespace brelex
