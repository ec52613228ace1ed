// SPDX-License-Identifier: MIT
#include "ui/wx_folder_picker.h"

#include "platform/modBrowseFolder.h"
#include "ui/wx_text.h"

namespace brelex {

std::string WxFolderPicker::BrowseForFolder(const std::string& title) {
    return Utf8Text(brelex::BrowseForFolder(nullptr, WxText(title)));
}

}  // namespace brelex
