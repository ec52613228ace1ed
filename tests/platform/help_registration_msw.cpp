// SPDX-License-Identifier: MIT
#include "tests/platform/help_registration.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <shlwapi.h>
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

std::optional<std::wstring> DefaultValue(HKEY root, const std::wstring& key) {
    wchar_t text[MAX_PATH * 2] = L"";
    DWORD size = sizeof text;
    return RegGetValueW(root, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text, &size) ==
                   ERROR_SUCCESS
               ? std::optional<std::wstring>(text)
               : std::nullopt;
}

void SetDefaultValue(const std::wstring& key, const std::wstring& text) {
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), nullptr, REG_SZ, text.c_str(),
                    static_cast<DWORD>(bytes));
}

void PutBack(const std::wstring& key, const std::optional<std::wstring>& text) {
    if (text) {
        SetDefaultValue(key, *text);
    } else {
        RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), nullptr);
        std::wstring made = key;
        while (SHDeleteEmptyKeyW(HKEY_LOCAL_MACHINE, made.c_str()) == ERROR_SUCCESS) {
            made.resize(made.rfind(L'\\'));
        }
    }
}

}  // namespace

struct HelpRegistration::Before {
    std::optional<std::wstring> type;
    std::optional<std::wstring> command;
};

// Windows puts the user's file types over the machine's. The Wine of these tests does not yet, so
// what the viewer registered is copied.
HelpRegistration::HelpRegistration() : before_(std::make_unique<Before>()) {
    RunViewer("--register");
    EXPECT_EQ(DefaultValue(HKEY_CURRENT_USER, kExtension), L"Brevilexicon.Help");
    const std::wstring command = DefaultValue(HKEY_CURRENT_USER, kCommand).value_or(L"");
    EXPECT_NE(command.find(L"brelex-help.exe\" \"%1\""), std::wstring::npos);
    before_->type = DefaultValue(HKEY_LOCAL_MACHINE, kExtension);
    SetDefaultValue(kExtension, L"Brevilexicon.Help");
    before_->command = DefaultValue(HKEY_LOCAL_MACHINE, kCommand);
    SetDefaultValue(kCommand, command);
}

HelpRegistration::~HelpRegistration() {
    RunViewer("--unregister");
    EXPECT_EQ(DefaultValue(HKEY_CURRENT_USER, kExtension).value_or(L""), L"");
    EXPECT_EQ(DefaultValue(HKEY_CURRENT_USER, kType).value_or(L""), L"");
    PutBack(kExtension, before_->type);
    PutBack(kCommand, before_->command);
}

}  // namespace brelex
