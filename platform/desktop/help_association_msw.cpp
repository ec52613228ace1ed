// SPDX-License-Identifier: MIT
// Uses the user's own part of the registered file types.
#include "platform/desktop/help_association.h"

#include <array>
#include <cstddef>

#include <windows.h>
#include <shlobj.h>

#include "platform/system/wide_text.h"

namespace brelex {

namespace {

const wchar_t* const kTypeName = L"Brevilexicon.Help";
const wchar_t* const kExtension = L"Software\\Classes\\.hlp";
const wchar_t* const kType = L"Software\\Classes\\Brevilexicon.Help";
const wchar_t* const kCommand = L"Software\\Classes\\Brevilexicon.Help\\shell\\open\\command";

// A value beside ours keeps the type that the extension had before. The unnamed value of a key is
// its default.
const wchar_t* const kBefore = L"Before";
const wchar_t* const kDefault = nullptr;

bool SetValue(const wchar_t* key, const wchar_t* name, const std::wstring& text) {
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    return RegSetKeyValueW(HKEY_CURRENT_USER, key, name, REG_SZ, text.c_str(),
                           static_cast<DWORD>(bytes)) == ERROR_SUCCESS;
}

// Reads a value. Empty if there is none.
std::wstring Value(const wchar_t* key, const wchar_t* name) {
    std::array<wchar_t, MAX_PATH> text{};
    DWORD size = sizeof text;
    return RegGetValueW(HKEY_CURRENT_USER, key, name, RRF_RT_REG_SZ, nullptr, text.data(), &size) ==
                   ERROR_SUCCESS
               ? text.data()
               : std::wstring();
}

bool Register(const std::string& program) {
    const std::wstring before = Value(kExtension, kDefault);
    return (before == kTypeName || SetValue(kType, kBefore, before)) &&
           SetValue(kType, kDefault, L"Brevilexicon help") &&
           SetValue(kCommand, kDefault, L"\"" + WideOfUtf8(program) + L"\" \"%1\"") &&
           SetValue(kExtension, kDefault, kTypeName);
}

// Another program may have taken over the extension and may keep more data in its key.
bool Unregister() {
    bool done = true;
    if (Value(kExtension, kDefault) == kTypeName) {
        const std::wstring before = Value(kType, kBefore);
        done = before.empty()
                   ? RegDeleteKeyValueW(HKEY_CURRENT_USER, kExtension, kDefault) == ERROR_SUCCESS
                   : SetValue(kExtension, kDefault, before);
    }
    const LSTATUS deleted = RegDeleteTreeW(HKEY_CURRENT_USER, kType);
    return done && (deleted == ERROR_SUCCESS || deleted == ERROR_FILE_NOT_FOUND);
}

}  // namespace

bool OpenHelpFilesWith(const std::string& program) {
    const bool done = program.empty() ? Unregister() : Register(program);
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
    return done;
}

}  // namespace brelex
