// SPDX-License-Identifier: MIT
#include "platform/system/temporary_folder_gtk.h"

#include <array>
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

}  // namespace

std::string TemporaryFolder() {
    const std::array<const char*, 3> folders = {std::getenv("XDG_RUNTIME_DIR"),
                                                std::getenv("TMPDIR"), "/tmp"};
    for (const char* folder : folders) {
        if (folder != nullptr && LetsUserMakeFiles(folder)) {
            return WithTrailingSeparator(folder);
        }
    }
    return {};
}

}  // namespace brelex
