// SPDX-License-Identifier: MIT
#include "platform/system/program_folder.h"

#include <filesystem>
#include <string>

#include <windows.h>

#include "base/file_io.h"

namespace brelex {

namespace {

std::filesystem::path ProgramFile() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size()) {  // the path was cut off because it is long
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(length);
    return path;
}

}  // namespace

std::string ProgramFolder() {
    return WithTrailingSeparator(Utf8OfPath(ProgramFile().parent_path()));
}

std::string ProgramName() {
    return Utf8OfPath(ProgramFile().stem());
}

}  // namespace brelex
