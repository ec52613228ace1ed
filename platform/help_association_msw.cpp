// SPDX-License-Identifier: MIT
#include "platform/help_association.h"

#include <array>
#include <string_view>

#include <windows.h>
#include <shlobj.h>

#include "platform/wide_text.h"

namespace brelex {

namespace {

// The user's own part of the registered file types.
const wchar_t* const kTypeName = L"Brevilexicon.Help";
const wchar_t* const kExtension = L"Software\\Classes\\.hlp";
const wchar_t* const kType = L"Software\\Classes\\Brevilexicon.Help";
const wchar_t* const kCommand = L"Software\\Classes\\Brevilexicon.Help\\shell\\open\\command";

void SetDefaultValue(const wchar_t* key, const std::wstring& text) {
    RegSetKeyValueW(HKEY_CURRENT_USER, key, nullptr, REG_SZ, text.c_str(),
                    static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

// Another program may have taken the extension over.
bool IsOurs(const wchar_t* key) {
    std::array<wchar_t, MAX_PATH> text{};
    DWORD size = sizeof text;
    return RegGetValueW(HKEY_CURRENT_USER, key, nullptr, RRF_RT_REG_SZ, nullptr, text.data(),
                        &size) == ERROR_SUCCESS &&
           std::wstring_view(text.data()) == kTypeName;
}

}  // namespace

void OpenHelpFilesWith(const std::string& program) {
    if (program.empty()) {
        if (IsOurs(kExtension)) {
            RegDeleteTreeW(HKEY_CURRENT_USER, kExtension);
        }
        RegDeleteTreeW(HKEY_CURRENT_USER, kType);
    } else {
        SetDefaultValue(kExtension, kTypeName);
        SetDefaultValue(kType, L"Brevilexicon help");
        SetDefaultValue(kCommand, L"\"" + WideOfUtf8(program) + L"\" \"%1\"");
    }
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

}  // namespace brelex
