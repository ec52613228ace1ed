// SPDX-License-Identifier: MIT
#include "database/modDataLoader.h"

#include <filesystem>
#include <functional>
#include <new>
#include <string>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "database/szdd.h"
#include "tests/support/fakes.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

class LoadDatabaseTest : public testing::Test {
  protected:
    LoadDatabaseTest() { values_.AppFolder = folder_.Text(); }

    bool Load(std::string_view databaseFile) {
        values_.DatabasePath = folder_.Write("Acronyms.dat", databaseFile);
        return LoadDatabase(values_, store_, {files_, progress_, messages_});
    }

    // Loads a file whose expanded bytes were changed by `damage`.
    bool LoadDamaged(const std::function<void(std::string&)>& damage) {
        std::string expanded = ExpandedBytes({"ABC\tAlpha Beta Charlie", "RAM\tMemory"});
        damage(expanded);
        return Load(CompressSzdd(expanded));
    }

    void ExpectFailure(const std::string& reason) {
        ASSERT_EQ(messages_.shown.size(), 1U);
        const Message& message = messages_.shown.front();
        EXPECT_EQ(message.text, reason + "\n\nPlease, reinstall Brevilexicon.");
        EXPECT_EQ(message.title, "Brevilexicon");
        EXPECT_EQ(message.icon, MessageIcon::Stop);
        EXPECT_EQ(message.buttons, MessageButtons::Ok);
        EXPECT_EQ(store_.RowCount(), 0);
    }

    [[nodiscard]] bool TemporaryFileExists() const {
        return std::filesystem::exists(PathOfUtf8(temp_.Text() + "~bx6120.tmp"));
    }

    TestFolder folder_;
    TestFolder temp_;
    ProgramValues values_;
    RecordStore store_;
    FakeTemporaryFiles files_{temp_.Text()};
    RecordingWatcher progress_;
    FakeMessageSink messages_;
};

constexpr const char* kCannotDecode = "Cannot decode a corrupt database. Loading was aborted.";
constexpr const char* kCorruptHeader = "The database header is corrupt. Loading was aborted.";
constexpr const char* kBadHeader = "Bad database header or corrupt data. Loading was aborted.";

TEST_F(LoadDatabaseTest, FillsTheStoreAndTheValues) {
    ASSERT_TRUE(Load(DatabaseBytes({"RAM\tMemory", "ABC\tAlpha Beta Charlie"})));
    EXPECT_EQ(store_.RowCount(), 2);
    EXPECT_EQ(store_.RowText(0), "ABC\tAlpha Beta Charlie");
    EXPECT_GT(store_.AscendingPrefixBytes(), 0U);  // so that look-ups are fast
    EXPECT_EQ(values_.RecordCount, 2);
    EXPECT_EQ(values_.ProgressStep, 1);
    EXPECT_EQ(values_.Header.Version, 1.5F);
    EXPECT_EQ(values_.TempFolder, temp_.Text());
    EXPECT_EQ(values_.TempFilePath, temp_.Text() + "~bx6120.tmp");
    EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(LoadDatabaseTest, DeletesTheTemporaryFileAfterReading) {
    ASSERT_TRUE(Load(DatabaseBytes({"ABC\tx"})));
    EXPECT_EQ(files_.written, std::vector<std::string>{values_.TempFilePath});
    EXPECT_FALSE(TemporaryFileExists());
}

TEST_F(LoadDatabaseTest, AnotherFolderServesIfTheFirstDoesNotTakeTheFile) {
    const TestFolder other;
    // Stands for a name that somebody else has taken.
    std::filesystem::create_directories(PathOfUtf8(temp_.Text() + kTempFileName + "/x"));
    files_.otherFolders = {temp_.Text(), folder_.Text() + "missing/", other.Text()};
    ASSERT_TRUE(Load(DatabaseBytes({"ABC\tx"})));
    EXPECT_EQ(values_.TempFolder, other.Text());
    EXPECT_EQ(values_.TempFilePath, other.Text() + kTempFileName);
    EXPECT_FALSE(std::filesystem::exists(PathOfUtf8(values_.TempFilePath)));
    EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(LoadDatabaseTest, AShortageOfMemoryIsNotCalledCorruption) {
    files_.memoryIsFull = true;
    EXPECT_THROW((void)Load(DatabaseBytes({"ABC\tx"})), std::bad_alloc);
    EXPECT_TRUE(messages_.shown.empty());
}

TEST_F(LoadDatabaseTest, SeveralExpansionsAreSeveralRecordsInFileOrder) {
    ASSERT_TRUE(Load(DatabaseBytes({"ABC\tTwo", "ABC\tOne", "ABC\tThree"})));
    EXPECT_EQ(store_.RowText(0), "ABC\tOne");
    EXPECT_EQ(store_.RowText(1), "ABC\tThree");
    EXPECT_EQ(store_.RowText(2), "ABC\tTwo");
}

TEST_F(LoadDatabaseTest, AnUncompressedFileIsRefused) {
    EXPECT_FALSE(Load(ExpandedBytes({"ABC\tx"})));
    ExpectFailure(kCannotDecode);
}

TEST_F(LoadDatabaseTest, AnEmptyFileIsRefused) {
    EXPECT_FALSE(Load(""));
    ExpectFailure(kCannotDecode);
}

TEST_F(LoadDatabaseTest, AMissingFileIsRefused) {
    values_.DatabasePath = folder_.Text() + "nothing.dat";
    EXPECT_FALSE(LoadDatabase(values_, store_, {files_, progress_, messages_}));
    ExpectFailure(kCannotDecode);
}

TEST_F(LoadDatabaseTest, AFolderInPlaceOfTheFileIsRefused) {
    values_.DatabasePath = folder_.Text();
    EXPECT_FALSE(LoadDatabase(values_, store_, {files_, progress_, messages_}));
    ExpectFailure(kCannotDecode);
}

TEST_F(LoadDatabaseTest, AFileThatExpandsToItsOwnLengthIsRefused) {
    const std::vector<std::string> records = {RecordOfEqualLengths()};
    const std::string file = DatabaseBytes(records);
    ASSERT_EQ(file.size(), ExpandedBytes(records).size());
    EXPECT_FALSE(Load(file));
    ExpectFailure(kCannotDecode);
}

TEST_F(LoadDatabaseTest, AHeaderWithoutDataIsRefused) {
    EXPECT_FALSE(LoadDamaged([](std::string& bytes) { bytes.resize(1089); }));
    ExpectFailure(kCorruptHeader);
}

TEST_F(LoadDatabaseTest, AHeaderThatSaysNoRecordsAndNoDataIsRefused) {
    EXPECT_FALSE(LoadDamaged([](std::string& bytes) {
        DatabaseHeader header = DecodeHeader(bytes);
        header.RecordCount = 0;
        header.DataSize = 0;
        bytes = EncodeHeader(header);
    }));
    ExpectFailure(kCorruptHeader);
}

TEST_F(LoadDatabaseTest, AnExpandedFileShorterThanTheHeaderIsRefused) {
    EXPECT_FALSE(LoadDamaged([](std::string& bytes) { bytes.resize(10); }));
    ExpectFailure(kCorruptHeader);
}

TEST_F(LoadDatabaseTest, OneByteOfDataPassesTheHeaderCheck) {
    EXPECT_TRUE(LoadDamaged([](std::string& bytes) {
        DatabaseHeader header = DecodeHeader(bytes);
        header.DataSize = 1;
        header.RecordCount = 0;
        bytes = EncodeHeader(header) + "x";
    }));
    EXPECT_EQ(store_.RowCount(), 0);
}

class WrongDataSizeTest : public LoadDatabaseTest,
                          public testing::WithParamInterface<std::int32_t> {};

TEST_P(WrongDataSizeTest, IsRefused) {
    EXPECT_FALSE(LoadDamaged([](std::string& bytes) {
        DatabaseHeader header = DecodeHeader(bytes);
        header.DataSize += GetParam();
        bytes.replace(0, kHeaderBytes, EncodeHeader(header));
    }));
    ExpectFailure(kBadHeader);
}

INSTANTIATE_TEST_SUITE_P(OffBy, WrongDataSizeTest, testing::Values(-1, 1, 1000000, -1000000));

TEST_F(LoadDatabaseTest, TheTemporaryFileOfARefusedDatabaseStays) {
    EXPECT_FALSE(LoadDamaged([](std::string& bytes) { bytes.resize(1089); }));
    EXPECT_TRUE(TemporaryFileExists());
    messages_.shown.clear();
    ASSERT_TRUE(Load(DatabaseBytes({"ABC\tx"})));  // the next start overwrites it
    EXPECT_FALSE(TemporaryFileExists());
}

TEST_F(LoadDatabaseTest, MoreRecordsThanTheBlockHoldsAreRefused) {
    EXPECT_FALSE(LoadDamaged([](std::string& bytes) {
        DatabaseHeader header = DecodeHeader(bytes);
        header.RecordCount = 3;
        bytes.replace(0, kHeaderBytes, EncodeHeader(header));
    }));
    ExpectFailure(kBadHeader);
    EXPECT_FALSE(TemporaryFileExists());
}

TEST_F(LoadDatabaseTest, ALastRecordWithoutItsNulIsRefused) {
    EXPECT_FALSE(LoadDamaged([](std::string& bytes) {
        bytes.pop_back();
        DatabaseHeader header = DecodeHeader(bytes);
        --header.DataSize;
        bytes.replace(0, kHeaderBytes, EncodeHeader(header));
    }));
    ExpectFailure(kBadHeader);
}

TEST_F(LoadDatabaseTest, ANegativeRecordCountIsAnEmptyList) {
    EXPECT_TRUE(LoadDamaged([](std::string& bytes) {
        DatabaseHeader header = DecodeHeader(bytes);
        header.RecordCount = -5;
        bytes.replace(0, kHeaderBytes, EncodeHeader(header));
    }));
    EXPECT_EQ(store_.RowCount(), 0);
    EXPECT_EQ(values_.RecordCount, 0);
}

TEST_F(LoadDatabaseTest, AFullTemporaryFolderIsRefused) {
    files_.diskIsFull = true;
    EXPECT_FALSE(Load(DatabaseBytes({"ABC\tx"})));
    ExpectFailure(kCannotDecode);
}

TEST_F(LoadDatabaseTest, IfAllFoldersAreFullWhatWasWrittenStaysOnlyInTheLast) {
    const TestFolder second;
    const TestFolder last;
    files_.otherFolders = {second.Text(), last.Text()};
    files_.diskIsFull = true;
    EXPECT_FALSE(Load(DatabaseBytes({"ABC\tx"})));
    EXPECT_FALSE(TemporaryFileExists());
    EXPECT_FALSE(std::filesystem::exists(PathOfUtf8(second.Text() + kTempFileName)));
    EXPECT_TRUE(std::filesystem::exists(PathOfUtf8(last.Text() + kTempFileName)));
}

TEST_F(LoadDatabaseTest, WithoutATemporaryFolderTheProgramsFolderIsUsed) {
    FakeTemporaryFiles noFolder("");
    values_.DatabasePath = folder_.Write("Acronyms.dat", DatabaseBytes({"ABC\tx"}));
    ASSERT_TRUE(LoadDatabase(values_, store_, {noFolder, progress_, messages_}));
    EXPECT_EQ(values_.TempFolder, folder_.Text());
    EXPECT_EQ(noFolder.written, std::vector<std::string>{folder_.Text() + "~bx6120.tmp"});
}

TEST_F(LoadDatabaseTest, SaysHowManyRecordsAreLoaded) {
    values_.groupSeparator = ".";
    ASSERT_TRUE(Load(DatabaseBytes(NumberedRecords(1234))));
    EXPECT_EQ(progress_.texts,
              std::vector<std::string>{"Loading database (1.234 records). Please, wait..."});
}

TEST_F(LoadDatabaseTest, With250RecordsEveryThirdIsReported) {
    ASSERT_TRUE(Load(DatabaseBytes(NumberedRecords(250))));
    EXPECT_EQ(values_.ProgressStep, 3);
    std::vector<int> expected;
    for (int i = 0; i < 250; i += 3) {
        expected.push_back((2 * i + 2) / 5);  // 0.4 percent for each record, to the nearest
    }
    expected.push_back(100);
    EXPECT_EQ(progress_.percents, expected);
    EXPECT_EQ(progress_.percents.at(1), 1);  // record 3 is 1.2 percent
    EXPECT_EQ(progress_.percents.size(), 85U);
}

TEST_F(LoadDatabaseTest, With99RecordsEachIsReported) {
    ASSERT_TRUE(Load(DatabaseBytes(NumberedRecords(99))));
    EXPECT_EQ(values_.ProgressStep, 1);
    EXPECT_EQ(progress_.percents.size(), 100U);
    EXPECT_EQ(progress_.percents.front(), 0);
    EXPECT_EQ(progress_.percents.back(), 100);
}

TEST_F(LoadDatabaseTest, ManyRecordsMakeAboutAHundredReports) {
    ASSERT_TRUE(Load(DatabaseBytes(NumberedRecords(1234))));
    EXPECT_EQ(values_.ProgressStep, 13);
    EXPECT_EQ(progress_.percents.size(), 96U);
}

TEST(ProgressStepOf, MakesAHundredReportsAtMost) {
    EXPECT_EQ(ProgressStepOf(12345), 124);
    for (const std::int64_t records : {1, 99, 100, 101, 12345, 1000000, 2147483647}) {
        const std::int64_t step = ProgressStepOf(static_cast<std::int32_t>(records));
        EXPECT_LE((records + step - 1) / step, 100) << records;
    }
    EXPECT_EQ(ProgressStepOf(0), 1);
    EXPECT_EQ(ProgressStepOf(-5), 1);
}

struct ClockCase {
    float before;
    float after;
    float seconds;
};

class LoadingTimeTest : public testing::TestWithParam<ClockCase> {};

TEST_P(LoadingTimeTest, IsRoundedToHundredths) {
    EXPECT_FLOAT_EQ(LoadingTimeBetween(GetParam().before, GetParam().after), GetParam().seconds);
}

INSTANTIATE_TEST_SUITE_P(Clocks, LoadingTimeTest,
                         testing::Values(ClockCase{100, 100, 0}, ClockCase{10, 10.126F, 0.13F},
                                         ClockCase{10, 12.5F, 2.5F},
                                         // Midnight lay between: kept as it is.
                                         ClockCase{86399, 1, -86398}));

}  // namespace
}  // namespace brelex
