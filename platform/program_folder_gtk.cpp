// SPDX-License-Identifier: MIT
#include "platform/program_folder.h"

#include <filesystem>
#include <system_error>

#include "database/file_io.h"

namespace brelex {

std::string ProgramFolder() {
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    const auto folder = error ? std::filesystem::current_path(error) : program.parent_path();
    return WithTrailingSeparator(Utf8OfPath(folder));
}

}  // namespace brelex
