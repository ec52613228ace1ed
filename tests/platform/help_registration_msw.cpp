// SPDX-License-Identifier: MIT
#include "tests/platform/help_registration.h"

#include <cstddef>
#include <string>

#include <gtest/gtest.h>

#include <wx/filename.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

#include <windows.h>

namespace brelex {

namespace {

const wchar_t* const kExtension = L"Software\\Classes\\.hlp";
const wchar_t* const kType = L"Software\\Classes\\Brevilexicon.Help";
const wchar_t* const kCommand = L"Software\\Classes\\Brevilexicon.Help\\shell\\open\\command";

void RunViewer(const wxString& argument) {
    const wxFileName tests(wxStandardPaths::Get().GetExecutablePath());
    const wxString viewer = wxFileName(tests.GetPath(), "brelex-help.exe").GetFullPath();
    EXPECT_EQ(wxExecute("\"" + viewer + "\" " + argument, wxEXEC_SYNC), 0);
}

std::wstring DefaultValue(HKEY root, const std::wstring& key) {
    wchar_t text[MAX_PATH * 2] = L"";
    DWORD size = sizeof text;
    return RegGetValueW(root, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text, &size) ==
                   ERROR_SUCCESS
               ? text
               : L"";
}

void SetDefaultValue(const std::wstring& key, const std::wstring& text) {
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), nullptr, REG_SZ, text.c_str(),
                    static_cast<DWORD>(bytes));
}

// What the machine's registry had.
std::wstring oldType;
std::wstring oldCommand;

}  // namespace

// Windows puts the user's file types over the machine's. The Wine of these tests does not yet, so
// what the viewer registered is copied.
void RegisterHelp() {
    RunViewer("--register");
    EXPECT_EQ(DefaultValue(HKEY_CURRENT_USER, kExtension), L"Brevilexicon.Help");
    EXPECT_NE(DefaultValue(HKEY_CURRENT_USER, kCommand).find(L"brelex-help.exe\" \"%1\""),
              std::wstring::npos);
    oldType = DefaultValue(HKEY_LOCAL_MACHINE, kExtension);
    SetDefaultValue(kExtension, L"Brevilexicon.Help");
    oldCommand = DefaultValue(HKEY_LOCAL_MACHINE, kCommand);
    SetDefaultValue(kCommand, DefaultValue(HKEY_CURRENT_USER, kCommand));
}

void UnregisterHelp() {
    RunViewer("--unregister");
    EXPECT_EQ(DefaultValue(HKEY_CURRENT_USER, kExtension), L"");
    EXPECT_EQ(DefaultValue(HKEY_CURRENT_USER, kType), L"");
    SetDefaultValue(kExtension, oldType);
    SetDefaultValue(kCommand, oldCommand);
}

}  // namespace brelex
