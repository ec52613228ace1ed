// SPDX-License-Identifier: MIT
#include "platform/system/system_temporary_files.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

namespace fs = std::filesystem;

class SystemTemporaryFilesTest : public testing::Test {
  protected:
    TestFolder folder_;
    SystemTemporaryFiles files_;
    fs::path path_ = folder_.Path() / "~bx6120.tmp";
    std::string text_ = Utf8OfPath(path_);
};

TEST_F(SystemTemporaryFilesTest, TheFolderEndsInTheSeparator) {
    const std::string folder = files_.GetTempFolder();
    EXPECT_EQ(WithTrailingSeparator(folder), folder);
}

TEST_F(SystemTemporaryFilesTest, WritesANewFile) {
    const std::string bytes("a\0b\r\n", 5);
    EXPECT_TRUE(files_.WriteNewFile(text_, bytes));
    EXPECT_EQ(ReadText(path_), bytes);
}

TEST_F(SystemTemporaryFilesTest, ReplacesAFileThatIsThere) {
    folder_.Write("~bx6120.tmp", "older and longer");
    EXPECT_TRUE(files_.WriteNewFile(text_, "new"));
    EXPECT_EQ(ReadText(path_), "new");
}

TEST_F(SystemTemporaryFilesTest, AMissingFolderIsAFailure) {
    EXPECT_FALSE(files_.WriteNewFile(folder_.Text() + "no/~bx6120.tmp", "x"));
}

TEST_F(SystemTemporaryFilesTest, AFolderOfThatNameIsAFailure) {
    fs::create_directories(path_ / "inside");
    EXPECT_FALSE(files_.WriteNewFile(text_, "x"));
    EXPECT_TRUE(fs::exists(path_ / "inside"));
}

}  // namespace
}  // namespace brelex
