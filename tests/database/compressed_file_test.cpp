// SPDX-License-Identifier: MIT
#include "database/compressed_file.h"

#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "database/szdd.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

TEST(CompressedFile, IsReadFromDiskAndExpanded) {
    const TestFolder folder;
    for (const std::size_t size : {0U, 1U, 5000U, 300000U}) {
        const std::string bytes(size, 'x');
        const std::string content = CompressSzdd(bytes);
        auto file = CompressedFile::Read(PathOfUtf8(folder.Write("file", content)));
        ASSERT_TRUE(file.has_value());
        EXPECT_EQ(file->Length(), content.size());
        const auto expanded = std::move(*file).Expand();
        ASSERT_TRUE(expanded.has_value());
        EXPECT_EQ(expanded->View(), bytes);
    }
}

TEST(CompressedFile, WithoutTheSignatureIsReadAsItIs) {
    const TestFolder folder;
    for (const char* const text : {"", "short", "longer than a header would be"}) {
        const std::string content = text;
        auto file = CompressedFile::Read(PathOfUtf8(folder.Write("file", content)));
        ASSERT_TRUE(file.has_value());
        EXPECT_EQ(file->Length(), content.size());
        const auto expanded = std::move(*file).Expand();
        ASSERT_TRUE(expanded.has_value());
        EXPECT_EQ(expanded->View(), content);
    }
}

TEST(CompressedFile, WhatIsNoFileCannotBeRead) {
    const TestFolder folder;
    EXPECT_FALSE(CompressedFile::Read(folder.Path() / "missing").has_value());
    EXPECT_FALSE(CompressedFile::Read(folder.Path()).has_value());
}

}  // namespace
}  // namespace brelex
