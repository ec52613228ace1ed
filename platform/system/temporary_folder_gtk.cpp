// SPDX-License-Identifier: MIT
#include "platform/system/temporary_folder_gtk.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <unistd.h>

#include "base/file_io.h"

namespace brelex {

namespace {

bool LetsUserMakeFiles(const std::filesystem::path& folder) {
    std::error_code error;
    return folder.is_absolute() && std::filesystem::is_directory(folder, error) &&
           access(folder.c_str(), W_OK | X_OK) == 0;
}

// The folders that users share come first, because only there does the system clean up.
std::vector<std::string> Candidates(bool withOwn) {
    std::vector<std::string> folders;
    const auto add = [&folders](const char* variable, const char* below) {
        if (const char* const folder = std::getenv(variable)) {
            folders.push_back(std::string(folder) + below);
        }
    };
    add("XDG_RUNTIME_DIR", "");
    add("TMPDIR", "");
    folders.emplace_back("/tmp");
    if (withOwn) {
        add("XDG_CACHE_HOME", "");
        add("HOME", "/.cache");
        add("HOME", "");
    }
    return folders;
}

std::vector<std::string> Suitable(const std::vector<std::string>& candidates) {
    std::vector<std::string> folders;
    for (const std::string& folder : candidates) {
        if (LetsUserMakeFiles(folder)) {
            folders.push_back(WithTrailingSeparator(folder));
        }
    }
    return folders;
}

}  // namespace

std::string TemporaryFolder() {
    const std::vector<std::string> folders = Suitable(Candidates(false));
    return folders.empty() ? "" : folders.front();
}

std::vector<std::string> TemporaryFolders() {
    return Suitable(Candidates(true));
}

}  // namespace brelex
