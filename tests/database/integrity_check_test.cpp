// SPDX-License-Identifier: MIT
#include "database/integrity_check.h"

#include <filesystem>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "database/modDataLoader.h"
#include "database/szdd.h"
#include "tests/support/fakes.h"
#include "tests/support/named_case.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

const std::vector<std::string> kRecords = {"ABC\tAlpha Beta Charlie", "RAM\tMemory"};

// A database that was loaded; then something may happen to its file.
class IntegrityCheckTest : public testing::Test {
  protected:
    IntegrityCheckTest() {
        values_.AppFolder = folder_.Text();
        values_.DatabasePath = folder_.Write("Acronyms.dat", DatabaseBytes(kRecords));
        EXPECT_TRUE(LoadDatabase(values_, store_, {files_, progress_, messages_}));
    }

    bool IsIntact() {
        WorkWatcher nobody;
        const bool intact = IsDataIntact(values_, files_, nobody);
        EXPECT_FALSE(std::filesystem::exists(PathOfUtf8(values_.TempFilePath)));
        return intact;
    }

    void WriteExpanded(const std::string& expanded) const {
        folder_.Write("Acronyms.dat", CompressSzdd(expanded));
    }

    TestFolder folder_;
    TestFolder temp_;
    ProgramValues values_;
    RecordStore store_;
    FakeTemporaryFiles files_{temp_.Text()};
    RecordingWatcher progress_;
    FakeMessageSink messages_;
};

TEST_F(IntegrityCheckTest, AnUnchangedFilePasses) {
    EXPECT_TRUE(IsIntact());
    EXPECT_EQ(files_.written.size(), 2U);  // by loading and by the check
}

TEST_F(IntegrityCheckTest, ASingleChangedLetterFailsAndPassesWhenItIsMended) {
    std::string expanded = ExpandedBytes(kRecords);
    expanded[kHeaderBytes + 5] ^= 1;
    WriteExpanded(expanded);
    EXPECT_FALSE(IsIntact());
    expanded[kHeaderBytes + 5] ^= 1;
    WriteExpanded(expanded);
    EXPECT_TRUE(IsIntact());
}

TEST_F(IntegrityCheckTest, TheHeaderFromTheStartCountsNotTheFiles) {
    std::string expanded = ExpandedBytes(kRecords);
    expanded[32] = static_cast<char>(expanded[32] + 1);  // in the file's own DataCRC
    WriteExpanded(expanded);
    EXPECT_TRUE(IsIntact());
    folder_.Write("Acronyms.dat", DatabaseBytes({"ABC\tAnother", "RAM\tdatabase"}));
    EXPECT_FALSE(IsIntact());
}

TEST_F(IntegrityCheckTest, WhatStandsBehindTheRecordsDoesNotCount) {
    WriteExpanded(ExpandedBytes(kRecords) + "more");
    EXPECT_TRUE(IsIntact());
}

TEST_F(IntegrityCheckTest, MissingBytesCountAsNuls) {
    std::string expanded = ExpandedBytes(kRecords);
    ASSERT_EQ(expanded.back(), '\0');
    expanded.pop_back();
    WriteExpanded(expanded);
    EXPECT_TRUE(IsIntact());
    expanded.pop_back();
    WriteExpanded(expanded);
    EXPECT_FALSE(IsIntact());
}

TEST_F(IntegrityCheckTest, NoRecordsAreIntactWithTheCrcOfNothing) {
    values_.Header.DataSize = 0;
    values_.Header.DataCRC = 0;
    EXPECT_TRUE(IsIntact());
    values_.Header.DataCRC = 1;
    EXPECT_FALSE(IsIntact());
}

TEST_F(IntegrityCheckTest, AFileWithoutCompressionIsReadAsItStands) {
    folder_.Write("Acronyms.dat", ExpandedBytes(kRecords));
    EXPECT_TRUE(IsIntact());
}

TEST_F(IntegrityCheckTest, AFullDiskFails) {
    files_.diskIsFull = true;
    EXPECT_FALSE(IsIntact());
}

TEST_F(IntegrityCheckTest, PassesWhereAnotherFolderTakesTheTemporaryFile) {
    const TestFolder other;
    std::filesystem::create_directories(PathOfUtf8(values_.TempFilePath + "/x"));
    files_.otherFolders = {other.Text()};
    WorkWatcher nobody;
    EXPECT_TRUE(IsDataIntact(values_, files_, nobody));
    EXPECT_TRUE(std::filesystem::is_empty(other.Path()));
}

TEST_F(IntegrityCheckTest, AnOldTemporaryFileDoesNotStandInForAMissingDatabase) {
    std::filesystem::remove(PathOfUtf8(values_.DatabasePath));
    temp_.Write(kTempFileName, ExpandedBytes(kRecords));
    EXPECT_FALSE(IsIntact());
}

struct DamageCase {
    const char* name;
    std::function<void(const std::filesystem::path&)> damage;
};

class DamagedAfterStart : public IntegrityCheckTest,
                          public testing::WithParamInterface<DamageCase> {};

TEST_P(DamagedAfterStart, Fails) {
    GetParam().damage(PathOfUtf8(values_.DatabasePath));
    EXPECT_FALSE(IsIntact());
}

INSTANTIATE_TEST_SUITE_P(
    Table, DamagedAfterStart,
    testing::Values(DamageCase{"Deleted", [](const auto& path) { std::filesystem::remove(path); }},
                    DamageCase{"Emptied",
                               [](const auto& path) { std::filesystem::resize_file(path, 0); }},
                    DamageCase{"CutInTheData",
                               [](const auto& path) {
                                   std::filesystem::resize_file(
                                       path, std::filesystem::file_size(path) - 4);
                               }},
                    DamageCase{"CutInTheHeader",
                               [](const auto& path) { std::filesystem::resize_file(path, 20); }},
                    DamageCase{"AFolderInItsPlace",
                               [](const auto& path) {
                                   std::filesystem::remove(path);
                                   std::filesystem::create_directory(path);
                               }}),
    CaseName());

}  // namespace
}  // namespace brelex
