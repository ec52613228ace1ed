// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "base/interface.h"

namespace brelex {

/// Lets the user choose a folder.
class FolderPicker : public Interface {
  public:
    /// The chosen folder, ending in the separator. Empty if the user canceled. `title` says what
    /// the folder is for.
    virtual std::string BrowseForFolder(const std::string& title) = 0;
};

}  // namespace brelex
