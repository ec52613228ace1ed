// SPDX-License-Identifier: MIT
#include "platform/system/system_temporary_files.h"

#include <array>
#include <filesystem>

#include <windows.h>

#include "base/file_io.h"
#include "platform/system/wide_text.h"
#include "platform/system/write_all_msw.h"

namespace brelex {

std::string SystemTemporaryFiles::GetTempFolder() const {
    // A longer path leaves the buffer empty. The caller then uses the program's folder.
    std::array<char, 100> folder{};
    if (GetTempPathA(static_cast<DWORD>(folder.size()), folder.data()) == 0) {
        return {};
    }
    return Utf8OfAnsi(folder.data());
}

std::vector<std::string> SystemTemporaryFiles::OtherFolders() const {
    return {};
}

bool SystemTemporaryFiles::WriteNewFile(const std::string& path, std::string_view bytes) {
    const std::filesystem::path file = PathOfUtf8(path);
    DeleteFileW(file.c_str());
    HANDLE handle = CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return false;
    }
    const bool written = WriteAll(handle, bytes);
    return CloseHandle(handle) != 0 && written;
}

}  // namespace brelex
