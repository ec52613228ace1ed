// SPDX-License-Identifier: MIT
#include "desktop_search/current_entries.h"

#include <iostream>
#include <sys/stat.h>

#include "database/locate_database.h"

namespace brelex {

// All zero if there is no such file.
CurrentEntries::FileState CurrentEntries::StateOf(const std::string& path) {
    struct stat status {};

    if (stat(path.c_str(), &status) != 0) {
        return {};
    }
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec,
            status.st_mtim.tv_nsec};
}

const RowList& CurrentEntries::Rows() {
    const std::string path = FindDatabaseIn(folder_).value_or(folder_ + kDatabaseName);
    // Before the file is read. If it changes meanwhile, the next call reads it again.
    const FileState state = StateOf(path);
    if (state_ == state) {
        return database_->store;
    }
    state_ = state;
    database_ = std::make_unique<OpenDatabase>();
    if (Load(path, *database_, std::cerr) == kFound) {
        database_->store.MeasureOrder();
    } else {
        database_ = std::make_unique<OpenDatabase>();
    }
    return database_->store;
}

}  // namespace brelex
