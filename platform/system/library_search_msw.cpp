// SPDX-License-Identifier: MIT
#include "platform/system/library_search.h"

#include <windows.h>

namespace brelex {

namespace {

// The folders of the program and of the system.
constexpr DWORD kDefaultFolders = 0x1000;  // LOAD_LIBRARY_SEARCH_DEFAULT_DIRS

}  // namespace

void LoadNoLibrariesFromCurrentFolder() {
    SetDllDirectoryW(L"");  // takes the current folder out of the search
    // This also takes out the folders of the user's PATH, but Windows 7 has it only with an update.
    using SetFolders = BOOL(WINAPI*)(DWORD);
    HMODULE const kernel = GetModuleHandleW(L"kernel32.dll");
    if (kernel != nullptr) {
        const auto setFolders = reinterpret_cast<SetFolders>(
            reinterpret_cast<void*>(GetProcAddress(kernel, "SetDefaultDllDirectories")));
        if (setFolders != nullptr) {
            setFolders(kDefaultFolders);
        }
    }
}

}  // namespace brelex
