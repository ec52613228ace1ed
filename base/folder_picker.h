// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brelex {

/// Lets the user choose a folder of the file system.
class FolderPicker {
  public:
    FolderPicker() = default;
    FolderPicker(const FolderPicker&) = delete;
    FolderPicker& operator=(const FolderPicker&) = delete;
    virtual ~FolderPicker() = default;

    /// The chosen folder, ending in the separator; empty if the user cancelled. `title` says what
    /// the folder is wanted for.
    virtual std::string BrowseForFolder(const std::string& title) = 0;
};

}  // namespace brelex
