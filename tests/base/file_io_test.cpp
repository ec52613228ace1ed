// SPDX-License-Identifier: MIT
#include "base/file_io.h"

#include <cstdint>
#include <fstream>
#include <system_error>

#include <gtest/gtest.h>

#include "tests/support/test_files.h"

namespace brelex {
namespace {

TEST(ReadWholeFile, ReadsAllBytesAndNothingOfAMissingFile) {
    const TestFolder folder;
    const std::string bytes("a\0b\r\n\x1A", 6);
    folder.Write("file", bytes);
    EXPECT_EQ(ReadWholeFile(folder.Path() / "file")->View(), bytes);
    EXPECT_FALSE(ReadWholeFile(folder.Path() / "missing").has_value());
    EXPECT_FALSE(ReadWholeFile(folder.Path()).has_value());
}

// Linux has such files. Elsewhere they are missing, and nothing is read either.
TEST(ReadWholeFile, ReadsNothingOfAFileThatIsShorterOrLongerThanItsLength) {
    EXPECT_FALSE(ReadWholeFile("/sys/devices/system/cpu/online").has_value());
    EXPECT_FALSE(ReadWholeFile("/proc/sys/kernel/hostname").has_value());
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

TEST(FileReader, AFileThatGrowsMeanwhileDoesNotEndWhereItDid) {
    const TestFolder folder;
    folder.Write("file", "0123456789");
    FileReader file(folder.Path() / "file");
    ASSERT_TRUE(file.IsOpen());
    std::string bytes(10, ' ');
    EXPECT_TRUE(file.Read(bytes.data(), 10));
    EXPECT_TRUE(file.IsAtEnd());
    FileReader grown(folder.Path() / "file");
    std::ofstream(folder.Path() / "file", std::ios::app) << "x";
    EXPECT_TRUE(grown.Read(bytes.data(), 10));
    EXPECT_FALSE(grown.IsAtEnd());
}

TEST(FileReader, AFileThatIsReplacedMeanwhileIsReadToItsEnd) {
    const TestFolder folder;
    folder.Write("file", "0123456789");
    folder.Write("other", "abc");
    FileReader file(folder.Path() / "file");
    ASSERT_TRUE(file.IsOpen());
    std::error_code inUse;  // Windows does not replace a file that is open
    std::filesystem::rename(folder.Path() / "other", folder.Path() / "file", inUse);
    std::string bytes(10, ' ');
    EXPECT_TRUE(file.Read(bytes.data(), 10));
    EXPECT_EQ(bytes, "0123456789");
    EXPECT_TRUE(file.IsAtEnd());
}

TEST(FileReader, OpensAnEmptyFile) {
    const TestFolder folder;
    folder.Write("file", "");
    const FileReader file(folder.Path() / "file");
    EXPECT_TRUE(file.IsOpen());
    EXPECT_EQ(file.Size(), 0U);
}

TEST(FileReader, OpensNothingLongerThan2GiB) {
    constexpr std::uintmax_t kMostBytes = std::uintmax_t{1} << 31U;
    const TestFolder folder;
    folder.Write("file", "");
    std::error_code error;
    std::filesystem::resize_file(folder.Path() / "file", kMostBytes, error);  // takes no room yet
    ASSERT_FALSE(error) << error.message();
    EXPECT_TRUE(FileReader(folder.Path() / "file").IsOpen());
    std::filesystem::resize_file(folder.Path() / "file", kMostBytes + 1);
    const FileReader file(folder.Path() / "file");
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(file.Size(), 0U);
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
