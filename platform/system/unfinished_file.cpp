// SPDX-License-Identifier: MIT
#include "platform/system/unfinished_file.h"

namespace brelex {

namespace fs = std::filesystem;

fs::path NumberedName(const fs::path& path, const char* ending, int number) {
    fs::path name = path;
    name += ending;
    if (number > 1) {
        name += std::to_string(number);
    }
    return name;
}

}  // namespace brelex
