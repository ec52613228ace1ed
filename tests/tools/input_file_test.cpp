// SPDX-License-Identifier: MIT
#include "tools/input_file.h"

#include <chrono>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "platform/system/replace_file.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

class StaysTheSameTest : public testing::Test {
  protected:
    TestFolder folder_;
    std::filesystem::path path_ = PathOfUtf8(folder_.Write("list.tsv", "AB\tOne\n"));
};

TEST_F(StaysTheSameTest, IfNobodyTouchesTheFile) {
    bool read = false;
    EXPECT_TRUE(StaysTheSame(path_, [&] { read = true; }));
    EXPECT_TRUE(read);
}

TEST_F(StaysTheSameTest, NotIfTheFileGrows) {
    EXPECT_FALSE(StaysTheSame(path_, [&] { folder_.Write("list.tsv", "AB\tOne\nCD\tTwo\n"); }));
}

TEST_F(StaysTheSameTest, NotIfAnotherFileOfTheSameLengthTakesItsPlace) {
    const auto old = std::filesystem::last_write_time(path_) - std::chrono::minutes(1);
    std::filesystem::last_write_time(path_, old);
    EXPECT_FALSE(StaysTheSame(path_, [&] { ASSERT_TRUE(ReplaceFile(path_, "AB\tTwo\n")); }));
}

TEST_F(StaysTheSameTest, NotIfTheFileIsDeleted) {
    EXPECT_FALSE(StaysTheSame(path_, [&] { std::filesystem::remove(path_); }));
}

TEST(FileBeside, PrefersTheExactNameAndOtherwiseIgnoresItsCase) {
    const TestFolder folder;
    const std::filesystem::path sibling = PathOfUtf8(folder.Write("a.index", ""));
    folder.Write("A.DICT", "");
    EXPECT_TRUE(std::filesystem::exists(FileBeside(sibling, "a.dict")));
    EXPECT_EQ(FileBeside(sibling, "b.dict"), folder.Path() / "b.dict");
    folder.Write("a.dict", "");
    EXPECT_EQ(FileBeside(sibling, "a.dict"), folder.Path() / "a.dict");
}

}  // namespace
}  // namespace brelex
