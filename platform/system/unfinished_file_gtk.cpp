// SPDX-License-Identifier: MIT
#include "platform/system/unfinished_file.h"

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/system/write_all_gtk.h"

namespace brelex {

namespace fs = std::filesystem;

namespace {

constexpr int kNone = -1;

std::string ReasonOf(int error) {
    return std::generic_category().message(error);
}

fs::path FolderOf(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

int Open(const fs::path& path, int flags) {
    constexpr mode_t kAsTheUserWants = 0666;  // the system takes away what the user's mask says
    int file = kNone;
    do {
        file = open(path.c_str(), flags | O_CLOEXEC, kAsTheUserWants);
    } while (file == kNone && errno == EINTR);
    return file;
}

// The open file, as the system shows it.
std::string LinkToOpenFile(int file) {
    return "/proc/self/fd/" + std::to_string(file);
}

// Locks a new file for as long as it is open, which tells other copies of the program that it is
// being written. Returns false if one of them took it for an abandoned file in the moment before.
bool Claim(int file) {
    if (flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        return false;
    }

    struct stat status {};

    return fstat(file, &status) != 0 || status.st_nlink != 0;
}

// Removes what a copy of the program left under this name when it was killed. A file that somebody
// is writing, that is not the user's own, or that has other names as well stays.
void RemoveAbandoned(const fs::path& name) {
    const int file = Open(name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
    if (file == kNone) {
        return;
    }

    struct stat opened {};

    struct stat named {};

    if (fstat(file, &opened) == 0 && S_ISREG(opened.st_mode) && opened.st_uid == geteuid() &&
        opened.st_nlink == 1 && flock(file, LOCK_EX | LOCK_NB) == 0 &&
        lstat(name.c_str(), &named) == 0 && named.st_ino == opened.st_ino &&
        named.st_dev == opened.st_dev) {
        unlink(name.c_str());
    }
    close(file);
}

// Creates a file without a name in the folder of `place`. Nobody sees it, and it vanishes with the
// program. Returns kNone if that is not possible here.
int OpenNameless(const fs::path& place) {
    constexpr const char* kOpenFiles = "/proc/self/fd";
    if (access(kOpenFiles, X_OK) != 0) {
        return kNone;
    }
    const int file = Open(FolderOf(place), O_WRONLY | O_TMPFILE);
    if (file != kNone) {
        flock(file, LOCK_EX | LOCK_NB);  // before it has a name
    }
    return file;
}

// Creates a file that has a name.
int OpenNamed(const fs::path& place, fs::path& name) {
    int file = kNone;
    int number = 0;
    do {
        name = NumberedName(place, kUnfinishedEnding, ++number);
        RemoveAbandoned(name);
        file = Open(name, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW);
        if (file != kNone && !Claim(file)) {
            close(file);
            file = kNone;
            errno = EEXIST;
        }
    } while (file == kNone && errno == EEXIST);
    if (file == kNone) {
        name.clear();
    }
    return file;
}

bool Sync(int file) {
    int result = 0;
    do {
        result = fsync(file);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

// Before the content is there, so that nobody can read it who may not.
bool TakeModeOf(const fs::path& old, int file) {
    struct stat status {};

    if (stat(old.c_str(), &status) != 0) {
        return errno == ENOENT;
    }
    if (!S_ISREG(status.st_mode)) {
        return true;  // it will not be replaced
    }
    // Usually nothing changes, and only the superuser may change it.
    [[maybe_unused]] const int ignored = fchown(file, status.st_uid, status.st_gid);
    constexpr mode_t kPermissions = 0777;
    return fchmod(file, status.st_mode & kPermissions) == 0;
}

// So that the name, too, survives a power cut. By now the file is in its place, and a failure would
// not change that.
void SyncFolder(const fs::path& path) {
    const int folder = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder != kNone) {
        fsync(folder);
        close(folder);
    }
}

}  // namespace

UnfinishedFile::UnfinishedFile(fs::path place) : place_(std::move(place)) {}

// The file stays locked until its name is gone, so that the name cannot be another copy's by then.
UnfinishedFile::~UnfinishedFile() {
    if (!name_.empty()) {
        unlink(name_.c_str());
    }
    if (file_ != kNone) {
        close(static_cast<int>(file_));
    }
}

std::string UnfinishedFile::Write(std::string_view bytes) {
    int file = OpenNameless(place_);
    if (file == kNone) {
        file = OpenNamed(place_, name_);
    }
    file_ = file;
    if (file == kNone || !TakeModeOf(place_, file) || !WriteAll(file, bytes) || !Sync(file)) {
        return ReasonOf(errno);
    }
    return {};
}

std::string UnfinishedFile::TakePlace() {
    const fs::path folder = FolderOf(place_);  // nothing may throw once the file is in its place
    const int file = static_cast<int>(file_);
    if (name_.empty()) {
        const std::string openFile = LinkToOpenFile(file);
        fs::path name;
        int number = 0;
        int result = 0;
        do {
            name = NumberedName(place_, kUnfinishedEnding, ++number);
            RemoveAbandoned(name);
            result = linkat(AT_FDCWD, openFile.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW);
        } while (result != 0 && errno == EEXIST);
        if (result != 0) {
            return ReasonOf(errno);
        }
        name_ = std::move(name);
    }
    // Some file systems report only then what they could not write. The file itself stays open,
    // because it must stay locked until it has its place.
    const int copy = fcntl(file, F_DUPFD_CLOEXEC, 0);
    if (copy == kNone || (close(copy) != 0 && errno != EINTR)) {  // an interrupted one is closed
        return ReasonOf(errno);
    }
    if (rename(name_.c_str(), place_.c_str()) != 0) {
        return ReasonOf(errno);
    }
    name_.clear();
    SyncFolder(folder);
    return {};
}

}  // namespace brelex
