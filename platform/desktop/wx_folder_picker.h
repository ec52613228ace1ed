// SPDX-License-Identifier: MIT
#pragma once

#include "base/folder_picker.h"

namespace brelex {

/// Asks for folders with the system's folder browser, which the desktop owns.
class WxFolderPicker final : public FolderPicker {
  public:
    std::string BrowseForFolder(const std::string& title) override;
};

}  // namespace brelex
