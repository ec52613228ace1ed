// SPDX-License-Identifier: MIT
#include "platform/system/write_all_gtk.h"

#include <cerrno>
#include <cstddef>
#include <unistd.h>

namespace brelex {

bool WriteAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written == 0) {
            errno = EIO;  // no system does that; nothing else would end it
        }
        if (written <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

}  // namespace brelex
