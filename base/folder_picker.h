// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/interface.h"

namespace brelex {

/// Lets the user choose a folder of the file system.
class FolderPicker : public Interface {
  public:
    /// The chosen folder, ending in the separator; empty if the user cancelled. `title` says what
    /// the folder is wanted for.
    virtual std::string BrowseForFolder(const std::string& title) = 0;
};

}  // namespace brelex
