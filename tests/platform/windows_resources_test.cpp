// SPDX-License-Identifier: MIT
// What Explorer and the system read out of the programs.
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include <windows.h>

#include "base/file_io.h"
#include "platform/system/program_folder.h"
#include "platform/system/wide_text.h"
#include "tests/support/named_case.h"

namespace brelex {
namespace {

std::filesystem::path Program(const std::string& name) {
    return PathOfUtf8(ProgramFolder() + name);
}

// A string of the version information; empty if there is none.
std::string VersionText(const std::filesystem::path& program, const std::wstring& name) {
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeW(program.c_str(), &ignored);
    std::vector<char> info(size);
    void* text = nullptr;
    UINT length = 0;
    if (size == 0 || GetFileVersionInfoW(program.c_str(), 0, size, info.data()) == 0 ||
        VerQueryValueW(info.data(), (L"\\StringFileInfo\\040904B0\\" + name).c_str(), &text,
                       &length) == 0) {
        return {};
    }
    return Utf8OfWide(static_cast<const wchar_t*>(text));
}

// Keeps the bytes of the first resource it is called for.
BOOL CALLBACK KeepBytes(HMODULE module, LPCWSTR type, LPWSTR name, LONG_PTR target) {
    HRSRC const found = FindResourceW(module, name, type);
    *reinterpret_cast<std::string*>(target) = {
        static_cast<const char*>(LockResource(LoadResource(module, found))),
        SizeofResource(module, found)};
    return FALSE;
}

// The bytes of the first resource of a type; empty if there is none.
std::string ResourceBytes(const std::filesystem::path& program, WORD type) {
    HMODULE const module = LoadLibraryExW(program.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    std::string bytes;
    EnumResourceNamesW(module, MAKEINTRESOURCEW(type), &KeepBytes,
                       reinterpret_cast<LONG_PTR>(&bytes));
    FreeLibrary(module);
    return bytes;
}

constexpr WORD kGroupIcon = 14;
constexpr WORD kManifest = 24;

struct ProgramCase {
    const char* name;
    const char* file;
    const char* description;
};

class ProgramFileTest : public testing::TestWithParam<ProgramCase> {
  protected:
    std::filesystem::path program_ = Program(GetParam().file);
};

TEST_P(ProgramFileTest, SaysWhatItIs) {
    EXPECT_EQ(VersionText(program_, L"ProductName"), "Brevilexicon");
    EXPECT_EQ(VersionText(program_, L"CompanyName"), TEST_PUBLISHER);
    EXPECT_EQ(VersionText(program_, L"FileDescription"), GetParam().description);
    EXPECT_EQ(VersionText(program_, L"LegalCopyright"), TEST_COPYRIGHT);
    EXPECT_EQ(VersionText(program_, L"FileVersion"), TEST_VERSION);
    EXPECT_EQ(VersionText(program_, L"ProductVersion"), TEST_VERSION);
    EXPECT_EQ(VersionText(program_, L"OriginalFilename"), GetParam().file);
}

TEST_P(ProgramFileTest, HasAnIconForEachPlaceThatShowsOne) {
    const std::string group = ResourceBytes(program_, kGroupIcon);
    constexpr std::size_t kHeaderBytes = 6;
    constexpr std::size_t kEntryBytes = 14;
    std::vector<int> widths;
    for (std::size_t at = kHeaderBytes; at + kEntryBytes <= group.size(); at += kEntryBytes) {
        widths.push_back(static_cast<unsigned char>(group[at]));
    }
    EXPECT_EQ(widths, (std::vector<int>{16, 20, 24, 32, 40, 48, 64, 128, 0}));  // 0 is 256
}

TEST_P(ProgramFileTest, AsksForTodaysControlsScalingAndPaths) {
    const std::string manifest = ResourceBytes(program_, kManifest);
    for (const char* wanted :
         {"Microsoft.Windows.Common-Controls", "version=\"6.0.0.0\"", "PerMonitorV2",
          ">true</longPathAware>", ">UTF-8</activeCodePage>", "level=\"asInvoker\""}) {
        EXPECT_NE(manifest.find(wanted), std::string::npos) << wanted;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Programs, ProgramFileTest,
    testing::Values(ProgramCase{"Dictionary", "brevilexicon.exe", "Brevilexicon"},
                    ProgramCase{"Companion", "brelex.exe", "Brevilexicon in the terminal"},
                    ProgramCase{"HelpViewer", "brelex-help.exe", "Brevilexicon help"}),
    CaseName());

}  // namespace
}  // namespace brelex
