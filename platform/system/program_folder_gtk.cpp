// SPDX-License-Identifier: MIT
#include "platform/system/program_folder.h"

#include <filesystem>
#include <system_error>

#include "base/file_io.h"

namespace brelex {

namespace {

// Empty if the system does not reveal the file.
std::filesystem::path ProgramFile() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
}

}  // namespace

std::string ProgramFolder() {
    std::error_code error;
    const auto program = ProgramFile();
    const auto folder =
        program.empty() ? std::filesystem::current_path(error) : program.parent_path();
    return WithTrailingSeparator(Utf8OfPath(folder));
}

std::string ProgramName() {
    const auto program = ProgramFile();
    return program.empty() ? "brevilexicon" : Utf8OfPath(program.filename());
}

}  // namespace brelex
