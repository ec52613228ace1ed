// SPDX-License-Identifier: MIT
// What the program asks of Windows, without its windows.
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include <windows.h>

#include "base/file_io.h"
#include "platform/system/instance_guard.h"
#include "platform/system/modRunAtStartup.h"
#include "platform/system/program_folder.h"
#include "platform/system/system_temporary_files.h"
#include "platform/system/user_locale.h"
#include "platform/system/wide_text.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

// Sets environment variables for the length of a test.
class Environment {
  public:
    explicit Environment(std::wstring name) : name_(std::move(name)) {
        constexpr DWORD kRoom = 2000;
        std::wstring before(kRoom, L'\0');
        before.resize(GetEnvironmentVariableW(name_.c_str(), before.data(), kRoom));
        before_ = before;
    }

    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

    ~Environment() { Set(before_); }

    void Set(const std::wstring& value) const {
        SetEnvironmentVariableW(name_.c_str(), value.empty() ? nullptr : value.c_str());
    }

  private:
    std::wstring name_;
    std::wstring before_;
};

TEST(GetTempFolderOnWindows, IsWhatTheSystemSays) {
    const TestFolder folder;
    const Environment tmp(L"TMP");
    tmp.Set(folder.Path().wstring());
    EXPECT_EQ(SystemTemporaryFiles().GetTempFolder(), folder.Text());
}

TEST(GetTempFolderOnWindows, KeepsAnAccentInTheUsersName) {
    const TestFolder folder;
    const std::filesystem::path inside = folder.Path() / L"Jos\u00E9";
    std::filesystem::create_directory(inside);
    const Environment tmp(L"TMP");
    tmp.Set(inside.wstring());
    EXPECT_EQ(SystemTemporaryFiles().GetTempFolder(), WithTrailingSeparator(Utf8OfPath(inside)));
}

TEST(GetTempFolderOnWindows, IsEmptyWhereThePathExceedsAHundredCharacters) {
    const TestFolder folder;
    const std::filesystem::path inside = folder.Path() / std::wstring(110, L'x');
    std::filesystem::create_directory(inside);
    const Environment tmp(L"TMP");
    tmp.Set(inside.wstring());
    EXPECT_EQ(SystemTemporaryFiles().GetTempFolder(), "");
}

TEST(ProgramFolderOnWindows, HasBackslashesAndEndsInOne) {
    const std::string folder = ProgramFolder();
    EXPECT_EQ(folder.back(), '\\');
    EXPECT_EQ(folder.find('/'), std::string::npos);
    EXPECT_EQ(folder[1], ':');
}

TEST(ProgramNameOnWindows, IsThatOfTheFileWithoutItsExtension) {
    EXPECT_EQ(ProgramName(), "core_tests");
}

TEST(WithTrailingSeparatorOnWindows, ADriveRootGetsNoSecondBackslash) {
    EXPECT_EQ(WithTrailingSeparator("C:\\"), "C:\\");
    EXPECT_EQ(WithTrailingSeparator("C:\\Data"), "C:\\Data\\");
}

TEST(InstanceGuardOnWindows, OnlyTheFirstIsAlone) {
    {
        const InstanceGuard first;
        EXPECT_FALSE(first.IsAnotherRunning());
        const InstanceGuard second;
        EXPECT_TRUE(second.IsAnotherRunning());
    }
    const InstanceGuard next;
    EXPECT_FALSE(next.IsAnotherRunning());
}

class UserGroupSeparatorOnWindows : public testing::Test {
  protected:
    void SetUp() override { GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, before_, 16); }

    void TearDown() override { Set(before_); }

    static void Set(const wchar_t* separator) {
        SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, separator);
    }

    wchar_t before_[16] = {};
};

TEST_F(UserGroupSeparatorOnWindows, IsTheOneOfTheUsersSettings) {
    Set(L".");
    EXPECT_EQ(UserGroupSeparator(), ".");
    Set(L"\u00A0");
    EXPECT_EQ(UserGroupSeparator(), "\xC2\xA0");
}

TEST_F(UserGroupSeparatorOnWindows, IsACommaWhereTheSettingsHaveNone) {
    Set(L"");
    EXPECT_EQ(UserGroupSeparator(), ",");
}

TEST(UserDecimalSeparatorOnWindows, IsTheOneOfTheUsersSettings) {
    wchar_t before[16] = {};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, before, 16);
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, L",");
    EXPECT_EQ(UserDecimalSeparator(), ",");
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, before);
}

TEST(Utf8OfWide, KeepsAllCharactersAndMarksBrokenOnes) {
    EXPECT_EQ(Utf8OfWide(L"a\u00E9\u4E2D\U0001F600"), "a\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80");
    const wchar_t broken[] = {L'a', 0xD800, L'b', 0};
    EXPECT_EQ(Utf8OfWide(broken),
              "a\xEF\xBF\xBD"
              "b");
    EXPECT_EQ(Utf8OfWide(L""), "");
}

TEST(Utf8OfAnsi, TakesTheSystemsCodePage) {
    ASSERT_EQ(GetACP(), 1252U);
    EXPECT_EQ(Utf8OfAnsi("\xE9\x80"), "\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(Utf8OfAnsi(""), "");
}

// With a registry of the test's own: the user's entries stay as they are.
class RunAtStartupOnWindows : public testing::Test {
  protected:
    static constexpr const wchar_t* kRun = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";
    static constexpr const wchar_t* kOwn = L"Software\\Brevilexicon test";

    void SetUp() override {
        HKEY own = nullptr;
        RegCreateKeyExW(HKEY_CURRENT_USER, kOwn, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &own,
                        nullptr);
        ASSERT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, own), ERROR_SUCCESS);
        RegCloseKey(own);
        CreateRun();
    }

    void TearDown() override {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegDeleteTreeW(HKEY_CURRENT_USER, kOwn);
    }

    static void CreateRun() {
        HKEY run = nullptr;
        RegCreateKeyExW(HKEY_CURRENT_USER, kRun, 0, nullptr, 0, KEY_WRITE, nullptr, &run, nullptr);
        RegCloseKey(run);
    }

    // The value of the registry as it is stored.
    std::wstring Stored() {
        HKEY run = nullptr;
        RegOpenKeyExW(HKEY_CURRENT_USER, kRun, 0, KEY_READ, &run);
        constexpr DWORD kRoom = 500;
        std::wstring data(kRoom, L'#');
        bytes_ = kRoom * DWORD{sizeof(wchar_t)};
        const LSTATUS status = RegQueryValueExW(run, L"Brevilexicon", nullptr, &type_,
                                                reinterpret_cast<BYTE*>(data.data()), &bytes_);
        RegCloseKey(run);
        if (status != ERROR_SUCCESS) {
            return L"(none)";
        }
        data.resize(bytes_ / sizeof(wchar_t));
        return data;
    }

    DWORD type_ = 0;
    DWORD bytes_ = 0;
};

TEST_F(RunAtStartupOnWindows, WritesTheCommandInSmallLettersWithItsZero) {
    ASSERT_TRUE(SetRunAtStartup("C:\\Program Files\\BREVI\u00C9\\", "Brevilexicon", true));
    const std::wstring command = L"c:\\program files\\brevi\u00E9\\brevilexicon.exe /minimize";
    EXPECT_EQ(Stored(), command + L'\0');
    EXPECT_EQ(type_, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(bytes_, (command.size() + 1) * sizeof(wchar_t));
}

TEST_F(RunAtStartupOnWindows, NamesTheFileThatTheProgramIs) {
    ASSERT_TRUE(SetRunAtStartup("C:\\", "My L\u00C9xico 2.0", true));
    EXPECT_EQ(Stored(), std::wstring(L"c:\\my l\u00E9xico 2.0.exe /minimize") + L'\0');
}

TEST_F(RunAtStartupOnWindows, DeletesTheValueOnce) {
    ASSERT_TRUE(SetRunAtStartup("C:\\", "brevilexicon", true));
    EXPECT_TRUE(SetRunAtStartup("C:\\", "brevilexicon", false));
    EXPECT_EQ(Stored(), L"(none)");
    EXPECT_FALSE(SetRunAtStartup("C:\\", "brevilexicon", false));
    EXPECT_TRUE(SetRunAtStartup("C:\\", "brevilexicon", true));
    EXPECT_EQ(Stored(), std::wstring(L"c:\\brevilexicon.exe /minimize") + L'\0');
}

TEST_F(RunAtStartupOnWindows, WithoutTheKeyNothingIsWritten) {
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software");
    EXPECT_FALSE(SetRunAtStartup("C:\\", "brevilexicon", true));
    EXPECT_FALSE(SetRunAtStartup("C:\\", "brevilexicon", false));
    CreateRun();
    EXPECT_EQ(Stored(), L"(none)");
}

}  // namespace
}  // namespace brelex
