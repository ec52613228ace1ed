// SPDX-License-Identifier: MIT
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "base/file_io.h"
#include "platform/system/instance_guard.h"
#include "platform/system/modRunAtStartup.h"
#include "platform/system/program_folder.h"
#include "platform/system/replace_file.h"
#include "platform/system/system_temporary_files.h"
#include "platform/system/user_locale.h"
#include "tests/support/named_case.h"
#include "tests/support/test_files.h"

// What only Linux has: links, permissions, environment variables.

namespace brelex {
namespace {

namespace fs = std::filesystem;

// Sets an environment variable, or unsets it, until the end of the test.
class Environment {
  public:
    Environment(const char* name, const std::optional<std::string>& value) : name_(name) {
        const char* old = std::getenv(name);
        if (old != nullptr) {
            old_ = old;
        }
        Set(value);
    }

    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

    ~Environment() { Set(old_); }

  private:
    void Set(const std::optional<std::string>& value) {
        if (value) {
            setenv(name_, value->c_str(), 1);
        } else {
            unsetenv(name_);
        }
    }

    const char* name_;
    std::optional<std::string> old_;
};

// Lets no file grow beyond 100 bytes, as a disk without room does.
class SmallFilesOnly {
  public:
    SmallFilesOnly() : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &old_);
        rlimit small = old_;
        small.rlim_cur = 100;
        setrlimit(RLIMIT_FSIZE, &small);
    }

    SmallFilesOnly(const SmallFilesOnly&) = delete;
    SmallFilesOnly& operator=(const SmallFilesOnly&) = delete;

    ~SmallFilesOnly() {
        setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, oldHandler_);
    }

  private:
    void (*oldHandler_)(int);
    rlimit old_{};
};

// Paths that begin with a slash are taken as they are, other names stand for what SetUp made.
struct FolderCase {
    const char* name;
    std::optional<std::string> runtime;
    std::optional<std::string> tmpdir;
    const char* folder;
};

class TempFolderOnLinux : public testing::TestWithParam<FolderCase> {
  protected:
    void SetUp() override {
        fs::create_directory(folder_.Path() / "first");
        fs::create_directory(folder_.Path() / "second");
        folder_.Write("file", "no folder");
        fs::create_symlink("first", folder_.Path() / "link");
        fs::create_symlink("nowhere", folder_.Path() / "broken");
    }

    [[nodiscard]] std::optional<std::string> InFolder(
        const std::optional<std::string>& name) const {
        return !name || name->empty() || name->front() == '/' || name->front() == '.'
                   ? name
                   : folder_.Text() + *name;
    }

    TestFolder folder_;
};

TEST_P(TempFolderOnLinux, IsTheFirstThatCanBeWrittenInto) {
    const Environment runtime("XDG_RUNTIME_DIR", InFolder(GetParam().runtime));
    const Environment tmpdir("TMPDIR", InFolder(GetParam().tmpdir));
    EXPECT_EQ(SystemTemporaryFiles().GetTempFolder(), InFolder(GetParam().folder));
}

INSTANTIATE_TEST_SUITE_P(
    Folders, TempFolderOnLinux,
    testing::Values(FolderCase{"RuntimeFolder", "first", "second", "first/"},
                    FolderCase{"WithItsSeparator", "first/", "second", "first/"},
                    FolderCase{"LinkToAFolder", "link", "second", "link/"},
                    FolderCase{"NoRuntimeFolder", std::nullopt, "second", "second/"},
                    FolderCase{"EmptyRuntimeFolder", "", "second", "second/"},
                    FolderCase{"MissingRuntimeFolder", "missing", "second", "second/"},
                    FolderCase{"BrokenLink", "broken", "second", "second/"},
                    FolderCase{"FileInItsPlace", "file", "second", "second/"},
                    FolderCase{"BelowAFile", "file/below", "second", "second/"},
                    FolderCase{"RelativeRuntimeFolder", ".", "second", "second/"},
                    FolderCase{"Neither", std::nullopt, std::nullopt, "/tmp/"},
                    FolderCase{"BothEmpty", "", "", "/tmp/"},
                    FolderCase{"BothMissing", "missing", "missing", "/tmp/"},
                    FolderCase{"RelativeTmpdir", "missing", "./", "/tmp/"}),
    CaseName());

// Runs `work` as somebody who may not write everywhere, whoever runs the tests. It returns what it
// found out as a number from 0 to 255.
template <typename Work>
int AsOrdinaryUser(const Work& work) {
    const pid_t child = fork();
    if (child == 0) {
        constexpr uid_t kNobody = 65534;
        if (geteuid() == 0 && setuid(kNobody) != 0) {
            _exit(255);
        }
        _exit(work());
    }
    int status = -1;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class TempFolderOfAnotherUser : public testing::Test {
  protected:
    // What a user has who took over another user's environment.
    void SetUp() override {
        fs::create_directory(folder_.Path() / "closed");
        fs::permissions(folder_.Path() / "closed", fs::perms::owner_read | fs::perms::owner_exec);
        fs::create_directory(folder_.Path() / "open");
        fs::permissions(folder_.Path() / "open", fs::perms::all);
        fs::permissions(folder_.Path(), fs::perms::others_exec, fs::perm_options::add);
    }

    TestFolder folder_;
    Environment runtime_{"XDG_RUNTIME_DIR", folder_.Text() + "closed"};
    Environment tmpdir_{"TMPDIR", folder_.Text() + "open"};
};

TEST_F(TempFolderOfAnotherUser, IsPassedOver) {
    EXPECT_EQ(AsOrdinaryUser([&] {
                  return SystemTemporaryFiles().GetTempFolder() == folder_.Text() + "open/" ? 1 : 0;
              }),
              1);
}

TEST_F(TempFolderOfAnotherUser, IsNotWhereTheLockIs) {
    EXPECT_EQ(AsOrdinaryUser([&] {
                  const InstanceGuard first;
                  const InstanceGuard second;
                  const bool isInOpenFolder = !fs::is_empty(folder_.Path() / "open");
                  return second.IsAnotherRunning() && isInOpenFolder ? 1 : 0;
              }),
              1);
}

TEST_F(TempFolderOfAnotherUser, LeavesOtherFoldersToTry) {
    const Environment home("HOME", folder_.Text() + "open");
    const Environment cache("XDG_CACHE_HOME", std::nullopt);
    EXPECT_EQ(AsOrdinaryUser([&] {
                  const std::vector<std::string> expected = {folder_.Text() + "open/", "/tmp/",
                                                             folder_.Text() + "open/"};
                  return SystemTemporaryFiles().OtherFolders() == expected ? 1 : 0;
              }),
              1);
}

class TemporaryFileOnLinux : public testing::Test {
  protected:
    TestFolder folder_;
    SystemTemporaryFiles files_;
    fs::path path_ = folder_.Path() / "~bx6120.tmp";
};

TEST_F(TemporaryFileOnLinux, APlantedLinkIsNotFollowed) {
    const std::string victim = folder_.Write("victim", "precious");
    fs::create_symlink(victim, path_);
    EXPECT_TRUE(files_.WriteNewFile(path_.string(), "new"));
    EXPECT_EQ(ReadText(victim), "precious");
    EXPECT_FALSE(fs::is_symlink(path_));
    EXPECT_EQ(ReadText(path_), "new");
}

TEST_F(TemporaryFileOnLinux, ALinkToNowhereIsNotFollowed) {
    fs::create_symlink(folder_.Path() / "nowhere", path_);
    EXPECT_TRUE(files_.WriteNewFile(path_.string(), "new"));
    EXPECT_FALSE(fs::exists(folder_.Path() / "nowhere"));
}

TEST_F(TemporaryFileOnLinux, OnlyTheUserCanReadIt) {
    EXPECT_TRUE(files_.WriteNewFile(path_.string(), "new"));
    EXPECT_EQ(fs::status(path_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(TemporaryFileOnLinux, AFullDiskIsAFailure) {
    const SmallFilesOnly limit;
    EXPECT_FALSE(files_.WriteNewFile(path_.string(), std::string(1000, 'x')));
}

TEST_F(TemporaryFileOnLinux, AReadOnlyFolderIsAFailure) {
    if (geteuid() == 0) {
        // The superuser may write anywhere but into the system's own views.
        EXPECT_FALSE(files_.WriteNewFile("/proc/~bx6120.tmp", "x"));
        return;
    }
    fs::permissions(folder_.Path(), fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_FALSE(files_.WriteNewFile(path_.string(), "x"));
}

TEST(InstanceGuardOnLinux, ASecondCopyIsSeenWhileTheFirstRuns) {
    const TestFolder folder;
    const Environment runtime("XDG_RUNTIME_DIR", folder.Path().string());
    {
        const InstanceGuard first;
        EXPECT_FALSE(first.IsAnotherRunning());
        const InstanceGuard second;
        EXPECT_TRUE(second.IsAnotherRunning());
        const InstanceGuard third;
        EXPECT_TRUE(third.IsAnotherRunning());
    }
    const InstanceGuard next;
    EXPECT_FALSE(next.IsAnotherRunning());
}

TEST(InstanceGuardOnLinux, ACopyThatCrashedLeavesNothingBehind) {
    const TestFolder folder;
    const Environment runtime("XDG_RUNTIME_DIR", folder.Path().string());
    const pid_t child = fork();
    if (child == 0) {
        const InstanceGuard guard;
        _exit(guard.IsAnotherRunning() ? 1 : 0);  // without destroying it
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    const InstanceGuard guard;
    EXPECT_FALSE(guard.IsAnotherRunning());
}

// What a build that was killed in the last moment leaves beside the file that it was going to
// replace.
class UnfinishedFileOnLinux : public testing::Test {
  protected:
    [[nodiscard]] bool ReplacesTheFile() const {
        return ReplaceFile(folder_.Path() / "file", "new") &&
               ReadText(folder_.Path() / "file") == "new";
    }

    TestFolder folder_;
    fs::path left_ = folder_.Write("file.brelex-part", "left");
};

TEST_F(UnfinishedFileOnLinux, VanishesIfNobodyWritesIt) {
    EXPECT_TRUE(ReplacesTheFile());
    EXPECT_FALSE(fs::exists(left_));
}

TEST_F(UnfinishedFileOnLinux, StaysIfSomebodyWritesIt) {
    const int file = open(left_.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(flock(file, LOCK_EX), 0);
    EXPECT_TRUE(ReplacesTheFile());
    EXPECT_EQ(ReadText(left_), "left");
    close(file);
}

TEST_F(UnfinishedFileOnLinux, StaysIfItIsALinkOrAPipe) {
    fs::remove(left_);
    const std::string victim = folder_.Write("victim", "precious");
    fs::create_symlink(victim, left_);
    EXPECT_TRUE(ReplacesTheFile());
    EXPECT_TRUE(fs::is_symlink(left_));
    EXPECT_EQ(ReadText(victim), "precious");
    fs::remove(left_);
    ASSERT_EQ(mkfifo(left_.c_str(), 0600), 0);
    EXPECT_TRUE(ReplacesTheFile());
    EXPECT_TRUE(fs::is_fifo(left_));
}

TEST_F(UnfinishedFileOnLinux, StaysIfItIsAnotherUsers) {
    constexpr uid_t kNobody = 65534;
    if (chown(left_.c_str(), kNobody, kNobody) != 0) {
        GTEST_SKIP() << "only the superuser can give a file away";
    }
    EXPECT_TRUE(ReplacesTheFile());
    EXPECT_EQ(ReadText(left_), "left");
}

class LockFileOnLinux : public testing::Test {
  protected:
    // Takes the lock as any process can that has the file open.
    [[nodiscard]] bool Hold() {
        file_ = open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        return flock(file_, LOCK_EX | LOCK_NB) == 0;
    }

    void TearDown() override {
        if (file_ >= 0) {
            close(file_);
        }
    }

    TestFolder folder_;
    Environment runtime_{"XDG_RUNTIME_DIR", folder_.Path().string()};
    fs::path path_ = folder_.Path() / ("brevilexicon-" + std::to_string(geteuid()) + ".lock");
    int file_ = -1;
};

TEST_F(LockFileOnLinux, CarriesTheUsersNumberAndIsTheUsersAlone) {
    const InstanceGuard guard;
    EXPECT_EQ(fs::status(path_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_FALSE(Hold());
}

TEST_F(LockFileOnLinux, IsBelievedIfOnlyTheUserCanHoldIt) {
    ASSERT_TRUE(Hold());
    EXPECT_TRUE(InstanceGuard().IsAnotherRunning());
}

TEST_F(LockFileOnLinux, GoesWithTheCopyThatHoldsIt) {
    auto first = std::make_unique<InstanceGuard>();
    { const InstanceGuard second; }
    EXPECT_TRUE(fs::exists(path_)) << "the first copy is still running";
    first.reset();
    EXPECT_FALSE(fs::exists(path_));
}

TEST_F(LockFileOnLinux, OfAnotherUserKeepsNobodyFromStarting) {
    ASSERT_TRUE(Hold());
    constexpr uid_t kNobody = 65534;
    if (chown(path_.c_str(), kNobody, kNobody) != 0) {
        GTEST_SKIP() << "only the superuser can give a file away";
    }
    EXPECT_FALSE(InstanceGuard().IsAnotherRunning());
}

TEST_F(LockFileOnLinux, ThatOthersCanOpenKeepsNobodyFromStarting) {
    ASSERT_TRUE(Hold());
    fs::permissions(path_, fs::perms::others_read, fs::perm_options::add);
    EXPECT_FALSE(InstanceGuard().IsAnotherRunning());
}

TEST_F(LockFileOnLinux, InWhosePlaceIsSomethingElseKeepsNobodyFromStarting) {
    fs::create_directory(path_);
    EXPECT_FALSE(InstanceGuard().IsAnotherRunning());
    fs::remove(path_);
    fs::create_symlink(folder_.Write("victim", "precious"), path_);
    EXPECT_FALSE(InstanceGuard().IsAnotherRunning());
    fs::remove(path_);
    ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
    EXPECT_FALSE(InstanceGuard().IsAnotherRunning());
}

TEST(UserGroupSeparatorOnLinux, IsACommaWhereTheLocaleHasNone) {
    const Environment locale("LC_ALL", "C");
    EXPECT_EQ(UserGroupSeparator(), ",");
}

TEST(UserDecimalSeparatorOnLinux, IsAPointWhereTheLocaleIsUnknownOrPlain) {
    for (const char* locale : {"C", "xx_XX.UTF-8"}) {
        const Environment numeric("LC_ALL", locale);
        EXPECT_EQ(UserDecimalSeparator(), ".");
    }
}

TEST(UserGroupSeparatorOnLinux, AnUnknownLocaleIsAComma) {
    const Environment locale("LC_ALL", "xx_YY.UTF-8");
    EXPECT_EQ(UserGroupSeparator(), ",");
}

TEST(ProgramNameOnLinux, IsThatOfTheFile) {
    EXPECT_EQ(ProgramName(), "core_tests");
}

TEST(SetRunAtStartupOnLinux, WritesTheAutostartEntryAndDeletesIt) {
    const TestFolder folder;
    const Environment configuration("XDG_CONFIG_HOME", folder.Path().string());
    EXPECT_TRUE(SetRunAtStartup("/opt/Brevi Lexicon/", "brevilexicon", true));
    const fs::path file = folder.Path() / "autostart/brevilexicon.desktop";
    EXPECT_EQ(ReadText(file),
              "[Desktop Entry]\nType=Application\nName=Brevilexicon\n"
              "Comment=Offline dictionary of computer acronyms and abbreviations\n"
              "Exec=\"/opt/Brevi Lexicon/brevilexicon\" /minimize\n"
              "TryExec=/opt/Brevi Lexicon/brevilexicon\n"
              "Icon=example.brevilexicon.Brevilexicon\n");
    EXPECT_TRUE(SetRunAtStartup("/opt/elsewhere/", "brevilexicon", true));
    EXPECT_NE(ReadText(file).find("/opt/elsewhere/"), std::string::npos);
    EXPECT_TRUE(SetRunAtStartup("/opt/elsewhere/", "brevilexicon", false));
    EXPECT_FALSE(fs::exists(file));
    EXPECT_FALSE(
        SetRunAtStartup("/opt/elsewhere/", "brevilexicon", false));  // there was nothing to delete
}

TEST(SetRunAtStartupOnLinux, WritesOnlyAnEntryThatDiffers) {
    const TestFolder folder;
    const Environment configuration("XDG_CONFIG_HOME", folder.Path().string());
    ASSERT_TRUE(SetRunAtStartup("/opt/", "brevilexicon", true));
    const fs::path file = folder.Path() / "autostart/brevilexicon.desktop";
    const std::string entry = ReadText(file);
    const fs::file_time_type longAgo = fs::last_write_time(file) - std::chrono::hours(1);
    fs::last_write_time(file, longAgo);
    EXPECT_TRUE(SetRunAtStartup("/opt/", "brevilexicon", true));
    EXPECT_EQ(fs::last_write_time(file), longAgo);
    folder.Write("autostart/brevilexicon.desktop", entry + "Terminal=true\n");
    EXPECT_TRUE(SetRunAtStartup("/opt/", "brevilexicon", true));
    EXPECT_EQ(ReadText(file), entry);
}

struct SwitchCase {
    const char* name;
    const char* line;
};

class EntrySwitchedOffByTheDesktop : public testing::TestWithParam<SwitchCase> {};

TEST_P(EntrySwitchedOffByTheDesktop, StaysSwitchedOff) {
    const TestFolder folder;
    const Environment configuration("XDG_CONFIG_HOME", folder.Path().string());
    const std::string line = std::string(GetParam().line) + "\n";
    ASSERT_TRUE(SetRunAtStartup("/opt/", "brevilexicon", true));
    const fs::path file = folder.Path() / "autostart/brevilexicon.desktop";
    const std::string entry = ReadText(file);
    // As a desktop writes it: with lines of its own among ours.
    const std::string ours = entry.substr(entry.find('\n') + 1);
    folder.Write("autostart/brevilexicon.desktop",
                 "[Desktop Entry]\n" + line + "StartupNotify=false\n" + ours);
    EXPECT_TRUE(SetRunAtStartup("/opt/", "brevilexicon", true));
    EXPECT_EQ(ReadText(file), entry + line);
    // Now nothing differs.
    const fs::file_time_type longAgo = fs::last_write_time(file) - std::chrono::hours(1);
    fs::last_write_time(file, longAgo);
    EXPECT_TRUE(SetRunAtStartup("/opt/", "brevilexicon", true));
    EXPECT_EQ(fs::last_write_time(file), longAgo);
    // The program may have moved since.
    EXPECT_TRUE(SetRunAtStartup("/usr/lib/brevilexicon/", "brevilexicon", true));
    const std::string moved = ReadText(file);
    EXPECT_NE(moved.find("\nTryExec=/usr/lib/brevilexicon/brevilexicon\n"), std::string::npos);
    EXPECT_TRUE(moved.ends_with("\n" + line)) << moved;
    // The program's own switch deletes the entry with all settings.
    EXPECT_TRUE(SetRunAtStartup("/opt/", "brevilexicon", false));
    EXPECT_TRUE(SetRunAtStartup("/opt/", "brevilexicon", true));
    EXPECT_EQ(ReadText(file), entry);
}

INSTANTIATE_TEST_SUITE_P(
    Desktops, EntrySwitchedOffByTheDesktop,
    testing::Values(SwitchCase{"Hidden", "Hidden=true"}, SwitchCase{"WithBlanks", "Hidden = true"},
                    SwitchCase{"Gnome", "X-GNOME-Autostart-enabled=false"},
                    SwitchCase{"Mate", "X-MATE-Autostart-enabled=false"},
                    SwitchCase{"Kde", "X-KDE-autostart-condition=a:b:c:false"}),
    CaseName());

TEST(SetRunAtStartupOnLinux, KeepsNothingElseOfAFile) {
    const TestFolder folder;
    const Environment configuration("XDG_CONFIG_HOME", folder.Path().string());
    ASSERT_TRUE(SetRunAtStartup("/opt/", "brevilexicon", true));
    const fs::path file = folder.Path() / "autostart/brevilexicon.desktop";
    const std::string entry = ReadText(file);
    for (const std::string other :
         {"", "\n", "\n\n", "Hidden=true\n", "[Other]\nHidden=true\n",
          "[Desktop Entry]\n[Other]\nHidden=true", "[Desktop Entry]\n#Hidden=true\nHiddenTruth=1\n",
          "[Desktop Entry]\nExec=/bin/false\nHidden[de]=true"}) {
        folder.Write("autostart/brevilexicon.desktop", other);
        EXPECT_TRUE(SetRunAtStartup("/opt/", "brevilexicon", true));
        EXPECT_EQ(ReadText(file), entry) << other;
    }
    folder.Write("autostart/brevilexicon.desktop", "[Desktop Entry]\nHidden=true");
    EXPECT_TRUE(SetRunAtStartup("/opt/", "brevilexicon", true));
    EXPECT_EQ(ReadText(file), entry + "Hidden=true\n") << "the last line needs no end";
}

TEST(SetRunAtStartupOnLinux, NamesTheFileThatTheProgramIs) {
    const TestFolder folder;
    const Environment configuration("XDG_CONFIG_HOME", folder.Path().string());
    const fs::path file = folder.Path() / "autostart/brevilexicon.desktop";
    for (const std::string name : {"brevi-renamed", "My Lexicon 2.0", "L\xC3\xA9xico"}) {
        EXPECT_TRUE(SetRunAtStartup("/opt/", name, true));
        EXPECT_NE(ReadText(file).find("\nExec=\"/opt/" + name + "\" /minimize\n"),
                  std::string::npos)
            << name;
    }
    EXPECT_TRUE(SetRunAtStartup("/opt/", "50%", true));
    EXPECT_NE(ReadText(file).find("Exec=\"/opt/50%%\" /minimize\n"), std::string::npos);
}

TEST(SetRunAtStartupOnLinux, ReservedCharactersOfThePathAreEscaped) {
    const TestFolder folder;
    const Environment configuration("XDG_CONFIG_HOME", folder.Path().string());
    EXPECT_TRUE(SetRunAtStartup("/a\"b`c$d\\e%f/", "brevilexicon", true));
    EXPECT_NE(ReadText(folder.Path() / "autostart/brevilexicon.desktop")
                  .find("Exec=\"/a\\\\\"b\\\\`c\\\\$d\\\\\\\\e%%f/brevilexicon\" /minimize\n"
                        "TryExec=/a\"b`c$d\\\\e%f/brevilexicon\n"),
              std::string::npos);
}

TEST(SetRunAtStartupOnLinux, ALineBreakInThePathBeginsNoLineOfTheEntry) {
    const TestFolder folder;
    const Environment configuration("XDG_CONFIG_HOME", folder.Path().string());
    EXPECT_TRUE(SetRunAtStartup("/a\nExec=b\r\tc/", "brevilexicon", true));
    EXPECT_NE(ReadText(folder.Path() / "autostart/brevilexicon.desktop")
                  .find("\nExec=\"/a\\nExec=b\\r\\tc/brevilexicon\" /minimize\n"
                        "TryExec=/a\\nExec=b\\r\\tc/brevilexicon\n"),
              std::string::npos);
}

TEST(SetRunAtStartupOnLinux, WithoutAConfigurationHomeItIsTheOneInTheHome) {
    const TestFolder folder;
    const Environment configuration("XDG_CONFIG_HOME", "relative/paths/count/as/none");
    const Environment home("HOME", folder.Path().string());
    EXPECT_TRUE(SetRunAtStartup("/opt/", "brevilexicon", true));
    EXPECT_TRUE(fs::exists(folder.Path() / ".config/autostart/brevilexicon.desktop"));
}

TEST(SetRunAtStartupOnLinux, AConfigurationHomeThatCannotBeWrittenIsAFailure) {
    const TestFolder folder;
    folder.Write("file", "in the way");
    const Environment configuration("XDG_CONFIG_HOME", (folder.Path() / "file").string());
    EXPECT_FALSE(SetRunAtStartup("/opt/", "brevilexicon", true));
    EXPECT_FALSE(SetRunAtStartup("/opt/", "brevilexicon", false));
    EXPECT_EQ(ReadText(folder.Path() / "file"), "in the way");
}

}  // namespace
}  // namespace brelex
