// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "database/integrity_check.h"
#include "database/modDataLoader.h"
#include "platform/system/system_temporary_files.h"
#include "tests/support/fakes.h"
#include "tests/support/test_files.h"

namespace brelex {
namespace {

namespace fs = std::filesystem;

// A folder that all users share, as /tmp is, where another user has taken the name of the temporary
// file. Nobody else can remove it there.
class PlantedTemporaryFile : public testing::Test {
  protected:
    void SetUp() override {
        if (geteuid() != 0) {
            GTEST_SKIP() << "only the superuser can be two users";
        }
        constexpr fs::perms kShared = fs::perms::all | fs::perms::sticky_bit;
        fs::create_directory(shared_);
        fs::permissions(shared_, kShared);
        fs::create_directory(folder_.Path() / "home");
        fs::permissions(folder_.Path() / "home", fs::perms::all);
        fs::permissions(folder_.Path(), fs::perms::others_exec, fs::perm_options::add);
        database_ = folder_.Write("Acronyms.dat", DatabaseBytes({"ABC\tAlpha", "RAM\tMemory"}));
    }

    // Loads and checks the database as a user who finds what was planted. Returns whether both
    // work.
    [[nodiscard]] bool LoadsAndPasses() const {
        const pid_t child = fork();
        if (child == 0) {
            constexpr uid_t kNobody = 65534;
            const bool works = setuid(kNobody) == 0 && LoadAndCheck();
            _exit(works ? 0 : 1);
        }
        int status = -1;
        waitpid(child, &status, 0);
        return status == 0;
    }

    TestFolder folder_;
    fs::path shared_ = folder_.Path() / "shared";
    fs::path planted_ = shared_ / kTempFileName;
    std::string database_;

  private:
    [[nodiscard]] bool LoadAndCheck() const {
        setenv("XDG_RUNTIME_DIR", shared_.c_str(), 1);
        setenv("TMPDIR", shared_.c_str(), 1);
        setenv("HOME", (folder_.Path() / "home").c_str(), 1);
        ProgramValues values;
        values.DatabasePath = database_;
        RecordStore store;
        SystemTemporaryFiles files;
        WorkWatcher nobody;
        FakeMessageSink messages;
        return LoadDatabase(values, store, {files, nobody, messages}) &&
               IsDataIntact(values, files, nobody) && messages.shown.empty();
    }
};

TEST_F(PlantedTemporaryFile, KeepsNobodyFromStarting) {
    folder_.Write(shared_.filename() / kTempFileName, "planted");
    EXPECT_TRUE(LoadsAndPasses());
    EXPECT_EQ(ReadText(planted_), "planted");
}

TEST_F(PlantedTemporaryFile, KeepsNobodyFromStartingIfItIsAFolderOrALink) {
    fs::create_directory(planted_);
    EXPECT_TRUE(LoadsAndPasses());
    fs::remove(planted_);
    fs::create_symlink(folder_.Write("victim", "precious"), planted_);
    EXPECT_TRUE(LoadsAndPasses());
    EXPECT_EQ(ReadText(folder_.Path() / "victim"), "precious");
}

}  // namespace
}  // namespace brelex
