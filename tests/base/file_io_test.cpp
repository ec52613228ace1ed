// SPDX-License-Identifier: MIT
#include "base/file_io.h"

#include <gtest/gtest.h>

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

TEST(ReplaceFile, LeavesFilesAloneThatHaveTheNameOfAnUnfinishedOne) {
    const TestFolder folder;
    folder.Write("file.part", "precious");
    folder.Write("file.part2", "too");
    EXPECT_TRUE(ReplaceFile(folder.Path() / "file", "new"));
    EXPECT_EQ(ReadText(folder.Path() / "file"), "new");
    EXPECT_EQ(ReadText(folder.Path() / "file.part"), "precious");
    EXPECT_EQ(ReadText(folder.Path() / "file.part2"), "too");
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

TEST(ReadWholeFile, ReadsAllBytesAndNothingOfAMissingFile) {
    const TestFolder folder;
    const std::string bytes("a\0b\r\n\x1A", 6);
    folder.Write("file", bytes);
    EXPECT_EQ(ReadWholeFile(folder.Path() / "file")->View(), bytes);
    EXPECT_FALSE(ReadWholeFile(folder.Path() / "missing").has_value());
    EXPECT_FALSE(ReadWholeFile(folder.Path()).has_value());
}

TEST(FileReader, ReadsTheBytesInOrderAndNoneBehindTheEnd) {
    const TestFolder folder;
    folder.Write("file", std::string("ab\0\r\n\x1A", 6));
    FileReader file(folder.Path() / "file");
    ASSERT_TRUE(file.IsOpen());
    EXPECT_EQ(file.Size(), 6U);
    std::string bytes(6, ' ');
    EXPECT_TRUE(file.Read(bytes.data(), 2));
    EXPECT_TRUE(file.Read(bytes.data() + 2, 0));
    EXPECT_TRUE(file.Read(bytes.data() + 2, 4));
    EXPECT_EQ(bytes, std::string("ab\0\r\n\x1A", 6));
    EXPECT_FALSE(file.Read(bytes.data(), 1));
}

TEST(FileReader, AFileThatIsCutMeanwhileIsNotReadInPart) {
    const TestFolder folder;
    folder.Write("file", "0123456789");
    FileReader file(folder.Path() / "file");
    ASSERT_TRUE(file.IsOpen());
    std::string bytes(10, ' ');
    EXPECT_TRUE(file.Read(bytes.data(), 3));
    std::filesystem::resize_file(folder.Path() / "file", 9);
    EXPECT_FALSE(file.Read(bytes.data(), 7));
}

TEST(FileReader, DoesNotOpenWhatIsNoFile) {
    const TestFolder folder;
    EXPECT_FALSE(FileReader(folder.Path() / "missing").IsOpen());
    EXPECT_FALSE(FileReader(folder.Path()).IsOpen());
}

TEST(WithTrailingSeparator, AFolderGetsOneSeparatorAndARootNoSecond) {
    const std::string separator = WithTrailingSeparator("");
    ASSERT_EQ(separator.size(), 1U);
    EXPECT_EQ(WithTrailingSeparator("folder"), "folder" + separator);
    EXPECT_EQ(WithTrailingSeparator("folder" + separator), "folder" + separator);
    EXPECT_EQ(WithTrailingSeparator(separator), separator);
    EXPECT_EQ(WithTrailingSeparator("C:" + separator), "C:" + separator);
}

TEST(PathOfUtf8, NamesWithAccentsSurvive) {
    const TestFolder folder;
    const std::string path = folder.Write("Abkürzungen-日本", "x");
    EXPECT_EQ(ReadText(PathOfUtf8(path)), "x");
    EXPECT_EQ(Utf8OfPath(PathOfUtf8(path)), path);
}

}  // namespace
}  // namespace brelex
