// SPDX-License-Identifier: MIT
// A database file that changes after the program has loaded it.
#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "database/integrity_check.h"
#include "database/modDataLoader.h"
#include "tests/support/fakes.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

namespace fs = std::filesystem;

class ChangedDatabaseFile : public testing::Test {
  protected:
    void SetUp() override {
        values_.DatabasePath = folder_.Write("Acronyms.dat", bytes_);
        ASSERT_TRUE(LoadDatabase(values_, store_, {files_, nobody_, messages_}));
        ASSERT_TRUE(IsIntact());
    }

    // What was loaded stays, whatever the check finds.
    [[nodiscard]] bool IsIntact() {
        EXPECT_EQ(store_.RowCount(), 2);
        EXPECT_EQ(store_.RowText(1), "RAM\tMemory");
        return IsDataIntact(values_, files_, nobody_) && messages_.shown.empty();
    }

    TestFolder folder_;
    std::string bytes_ = DatabaseBytes({"ABC\tAlpha", "RAM\tMemory"});
    fs::path path_ = folder_.Path() / "Acronyms.dat";
    ProgramValues values_;
    RecordStore store_;
    FakeTemporaryFiles files_{folder_.Text()};
    WorkWatcher nobody_;
    FakeMessageSink messages_;
};

TEST_F(ChangedDatabaseFile, PassesTheCheckIfItIsReplacedByTheSame) {
    fs::rename(folder_.Write("new", bytes_), path_);
    EXPECT_TRUE(IsIntact());
}

TEST_F(ChangedDatabaseFile, FailsTheCheckIfItIsReplacedByAnother) {
    fs::rename(folder_.Write("new", DatabaseBytes({"ABC\tAlpha", "RAM\tAnother"})), path_);
    EXPECT_FALSE(IsIntact());
}

TEST_F(ChangedDatabaseFile, FailsTheCheckAtEachLengthThatIsCut) {
    // The last byte is the zero that ends the last record. The check fills up what is missing with
    // zeros, so it does not matter.
    for (std::size_t size = bytes_.size() - 2; size > 0; size -= std::min<std::size_t>(size, 37)) {
        fs::resize_file(path_, size);
        EXPECT_FALSE(IsIntact()) << size;
    }
}

TEST_F(ChangedDatabaseFile, FailsTheCheckIfItIsOverwrittenOrDeleted) {
    folder_.Write("Acronyms.dat", std::string(bytes_.size(), 'x'));
    EXPECT_FALSE(IsIntact());
    fs::remove(path_);
    EXPECT_FALSE(IsIntact());
    fs::create_directory(path_);
    EXPECT_FALSE(IsIntact());
}

}  // namespace
}  // namespace brelex
