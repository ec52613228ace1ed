// SPDX-License-Identifier: MIT
#include "platform/system/modRunAtStartup.h"

#include <windows.h>

#include "base/app_info.h"
#include "platform/system/wide_text.h"

namespace brelex {

bool SetRunAtStartup(const std::string& appFolder, const std::string& programName, bool enable) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Run", 0,
                      KEY_WRITE, &key) != ERROR_SUCCESS) {
        return false;
    }
    const std::wstring name = WideOfUtf8(kAppTitle);
    LSTATUS status = ERROR_SUCCESS;
    if (enable) {
        std::wstring command = WideOfUtf8(appFolder + programName + ".exe " + "/minimize");
        CharLowerBuffW(command.data(), static_cast<DWORD>(command.size()));
        const std::size_t bytes = (command.size() + 1) * sizeof(wchar_t);  // with its zero
        status = RegSetValueExW(key, name.c_str(), 0, REG_SZ,
                                reinterpret_cast<const BYTE*>(command.c_str()),
                                static_cast<DWORD>(bytes));
    } else {
        status = RegDeleteValueW(key, name.c_str());
    }
    if (status != ERROR_SUCCESS) {
        return false;  // intentionally leaves the key open
    }
    RegCloseKey(key);
    return true;
}

}  // namespace brelex
