// SPDX-License-Identifier: MIT
#include "platform/system/system_temporary_files.h"

#include <fcntl.h>
#include <unistd.h>

#include "platform/system/temporary_folder_gtk.h"
#include "platform/system/write_all_gtk.h"

namespace brelex {

std::string SystemTemporaryFiles::GetTempFolder() const {
    return TemporaryFolder();
}

std::vector<std::string> SystemTemporaryFiles::OtherFolders() const {
    return TemporaryFolders();
}

bool SystemTemporaryFiles::WriteNewFile(const std::string& path, std::string_view bytes) {
    unlink(path.c_str());  // if this fails, so does the next call
    constexpr mode_t kOwnerOnly = 0600;
    const int file =
        open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kOwnerOnly);
    if (file < 0) {
        return false;
    }
    const bool written = WriteAll(file, bytes);
    return close(file) == 0 && written;
}

}  // namespace brelex
