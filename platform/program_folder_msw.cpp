// SPDX-License-Identifier: MIT
#include "platform/program_folder.h"

#include <filesystem>
#include <string>

#include <windows.h>

#include "database/file_io.h"

namespace brelex {

std::string ProgramFolder() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size()) {  // cut off: a long path
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(length);
    return WithTrailingSeparator(Utf8OfPath(std::filesystem::path(path).parent_path()));
}

}  // namespace brelex
