// SPDX-License-Identifier: MIT
#include "platform/system/replace_file.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

TEST(ReplaceFile, WritesANewFileAndReplacesAnOldOne) {
    const TestFolder folder;
    const auto path = folder.Path() / "file";
    EXPECT_TRUE(ReplaceFile(path, "old"));
    EXPECT_TRUE(ReplaceFile(path, "new"));
    EXPECT_EQ(ReadText(path), "new");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
}

TEST(ReplaceFile, AFailureLeavesTheOldContentAndSaysWhy) {
    const TestFolder folder;
    const auto path = folder.Path() / "file";
    std::filesystem::create_directory(path);  // cannot be replaced by a file
    std::string why;
    EXPECT_FALSE(ReplaceFile(path, "new", &why));
    EXPECT_TRUE(why.starts_with("cannot replace " + Utf8OfPath(path) + ": ")) << why;
    EXPECT_TRUE(std::filesystem::is_directory(path));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
}

TEST(ReplaceFile, LeavesWhatIsNoUnfinishedFileAlone) {
    namespace fs = std::filesystem;
    const TestFolder folder;
    const fs::path victim = folder.Write("victim", "precious");
    fs::create_directory(folder.Path() / "file.brelex-part");
    fs::create_hard_link(victim, folder.Path() / "file.brelex-part2");
    EXPECT_TRUE(ReplaceFile(folder.Path() / "file", "new"));
    EXPECT_EQ(ReadText(folder.Path() / "file"), "new");
    EXPECT_TRUE(fs::is_directory(folder.Path() / "file.brelex-part"));
    EXPECT_EQ(ReadText(folder.Path() / "file.brelex-part2"), "precious");
    EXPECT_EQ(ReadText(victim), "precious");
}

TEST(ReplaceFile, AMissingFolderIsAFailure) {
    const TestFolder folder;
    const auto path = folder.Path() / "no" / "file";
    EXPECT_FALSE(ReplaceFile(path, "new"));
    std::string why;
    EXPECT_FALSE(ReplaceFile(path, "new", &why));
    EXPECT_EQ(why, "cannot write " + Utf8OfPath(path) + ": No such file or directory");
}

TEST(ReplaceFile, KeepsTheModeOfTheOldFile) {
    namespace fs = std::filesystem;
    const TestFolder folder;
    const fs::path path = folder.Path() / "file";
    ASSERT_TRUE(ReplaceFile(path, "old"));
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
    const fs::perms before = fs::status(path).permissions();
    ASSERT_TRUE(ReplaceFile(path, "new"));
    EXPECT_EQ(fs::status(path).permissions(), before);
}

std::ptrdiff_t FilesIn(const TestFolder& folder) {
    return std::distance(std::filesystem::directory_iterator(folder.Path()), {});
}

TEST(ReplaceFiles, WritesNewFilesAndReplacesOldOnes) {
    const TestFolder folder;
    folder.Write("b", "old");
    EXPECT_TRUE(ReplaceFiles({{folder.Path() / "a", "1"}, {folder.Path() / "b", "2"}}));
    EXPECT_EQ(ReadText(folder.Path() / "a"), "1");
    EXPECT_EQ(ReadText(folder.Path() / "b"), "2");
    EXPECT_EQ(FilesIn(folder), 2);
}

TEST(ReplaceFiles, ReplacesNoneIfOneCannotBeReplaced) {
    const TestFolder folder;
    folder.Write("a", "old");
    folder.Write("a.old", "precious");
    std::filesystem::create_directory(folder.Path() / "c");  // cannot be replaced by a file
    std::string why;
    EXPECT_FALSE(ReplaceFiles({{folder.Path() / "a", "1"},
                               {folder.Path() / "b", "2"},
                               {folder.Path() / "c", "3"},
                               {folder.Path() / "d", "4"}},
                              &why));
    EXPECT_TRUE(why.starts_with("cannot replace " + Utf8OfPath(folder.Path() / "c"))) << why;
    EXPECT_EQ(ReadText(folder.Path() / "a"), "old");
    EXPECT_EQ(ReadText(folder.Path() / "a.old"), "precious");
    EXPECT_EQ(FilesIn(folder), 3);
}

TEST(ReplaceFiles, WritesNoneIfOneCannotBeWritten) {
    const TestFolder folder;
    std::string why;
    EXPECT_FALSE(
        ReplaceFiles({{folder.Path() / "a", "1"}, {folder.Path() / "no" / "b", "2"}}, &why));
    EXPECT_TRUE(why.starts_with("cannot write " + Utf8OfPath(folder.Path() / "no" / "b"))) << why;
    EXPECT_EQ(FilesIn(folder), 0);
}

}  // namespace
}  // namespace brelex
