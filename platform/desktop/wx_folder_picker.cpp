// SPDX-License-Identifier: MIT
#include "platform/desktop/wx_folder_picker.h"

#include "platform/desktop/modBrowseFolder.h"
#include "toolkit/wx_text.h"

namespace brelex {

std::string WxFolderPicker::BrowseForFolder(const std::string& title) {
    return Utf8Text(brelex::BrowseForFolder(nullptr, WxText(title)));
}

}  // namespace brelex
