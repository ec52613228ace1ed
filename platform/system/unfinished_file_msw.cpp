// SPDX-License-Identifier: MIT
#include "platform/system/unfinished_file.h"

#include <system_error>
#include <utility>

#include <windows.h>

#include "platform/system/write_all_msw.h"

namespace brelex {

namespace fs = std::filesystem;

namespace {

constexpr std::intptr_t kNone = -1;  // as INVALID_HANDLE_VALUE

// In the words that all systems share, as far as there are any. The system's own are in the user's
// code page.
std::string ReasonOf(DWORD error) {
    return std::system_category().default_error_condition(static_cast<int>(error)).message();
}

HANDLE HandleOf(std::intptr_t file) {
    return reinterpret_cast<HANDLE>(file);  // NOLINT(performance-no-int-to-ptr): it was one before
}

// Decides whether the file is deleted when it is closed, also by the end of the program.
bool SetDeletedOnClose(HANDLE file, bool deleted) {
    FILE_DISPOSITION_INFO info{};
    info.DeleteFile = deleted ? TRUE : FALSE;
    return SetFileInformationByHandle(file, FileDispositionInfo, &info, sizeof(info)) != 0;
}

}  // namespace

UnfinishedFile::UnfinishedFile(fs::path place) : place_(std::move(place)) {}

UnfinishedFile::~UnfinishedFile() {
    if (file_ != kNone) {
        CloseHandle(HandleOf(file_));
    }
    if (!name_.empty()) {
        std::error_code ignored;
        fs::permissions(name_, fs::perms::owner_write, fs::perm_options::add, ignored);
        fs::remove(name_, ignored);
    }
}

std::string UnfinishedFile::Write(std::string_view bytes) {
    HANDLE file = INVALID_HANDLE_VALUE;
    int number = 0;
    do {
        name_ = NumberedName(place_, kUnfinishedEnding, ++number);
        file = CreateFileW(name_.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                           FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    } while (file == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_EXISTS);
    if (file == INVALID_HANDLE_VALUE) {
        name_.clear();
        return ReasonOf(GetLastError());
    }
    file_ = reinterpret_cast<std::intptr_t>(file);
    SetDeletedOnClose(file, true);  // without it, the destructor has to delete the file
    return WriteAll(file, bytes) && FlushFileBuffers(file) != 0 ? "" : ReasonOf(GetLastError());
}

std::string UnfinishedFile::TakePlace() {
    HANDLE file = HandleOf(std::exchange(file_, kNone));
    SetDeletedOnClose(file, false);
    if (CloseHandle(file) == 0) {
        return ReasonOf(GetLastError());
    }
    std::error_code error;
    if (const fs::file_status old = fs::status(place_, error); fs::is_regular_file(old)) {
        fs::permissions(name_, old.permissions(), error);
    }
    fs::rename(name_, place_, error);
    if (error) {
        return error.message();
    }
    name_.clear();
    return {};
}

}  // namespace brelex
