// SPDX-License-Identifier: MIT
// Where Windows looks for libraries.
#include <array>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include <windows.h>

#include "platform/system/library_search.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* kPlanted = L"planted-library.dll";

// Puts a library into the current folder for the length of a test.
class PlantedLibrary : public testing::Test {
  protected:
    void SetUp() override {
        std::array<wchar_t, MAX_PATH> system{};
        GetSystemDirectoryW(system.data(), static_cast<UINT>(system.size()));
        fs::copy_file(fs::path(system.data()) / L"msimg32.dll", folder_.Path() / kPlanted);
        fs::current_path(folder_.Path());
    }

    void TearDown() override { fs::current_path(before_); }

    [[nodiscard]] static bool IsLoaded() {
        HMODULE const library = LoadLibraryW(kPlanted);
        return library != nullptr && FreeLibrary(library) != 0;
    }

    TestFolder folder_;
    fs::path before_ = fs::current_path();
};

// What the call changes cannot be taken back, and none of the other tests needs it.
TEST_F(PlantedLibrary, IsNotLoadedByOurPrograms) {
    EXPECT_TRUE(IsLoaded()) << "the system does not look into the current folder anyway";
    LoadNoLibrariesFromCurrentFolder();
    EXPECT_FALSE(IsLoaded());
}

}  // namespace
}  // namespace brelex
