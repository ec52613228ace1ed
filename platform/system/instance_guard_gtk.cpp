// SPDX-License-Identifier: MIT
#include "platform/system/instance_guard.h"

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/system/temporary_folder_gtk.h"

namespace brelex {

namespace {

constexpr mode_t kOwnerOnly = 0600;
constexpr int kNone = -1;

// The name contains the user's number, because users may share the folder.
std::string LockPath() {
    const std::string folder = TemporaryFolder();
    return folder.empty() ? "" : folder + "brevilexicon-" + std::to_string(geteuid()) + ".lock";
}

// Whether nobody but the user can have this file open. In a shared folder, another user may have
// taken the name earlier and could hold the lock forever.
bool IsOnlyOurs(int file) {
    struct stat status {};

    constexpr mode_t kOthers = 077;
    return fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == geteuid() &&
           (status.st_mode & kOthers) == 0;
}

int OpenLockFile(const std::string& path) {
    const int file =
        open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, kOwnerOnly);
    if (file >= 0 && !IsOnlyOurs(file)) {
        close(file);
        return kNone;
    }
    return file;
}

// Whether the file has no name anymore, for example because another copy removed it at its end.
bool IsRemoved(int file) {
    struct stat status {};

    return fstat(file, &status) == 0 && status.st_nlink == 0;
}

}  // namespace

// An advisory lock. The system releases it however the process ends. Only the copy that holds the
// lock removes the file, so two copies never hold locks on two files of the same name.
class InstanceGuard::Place {
  public:
    Place() : path_(LockPath()) {
        do {
            Close();
            file_ = OpenLockFile(path_);
            isLocked_ = file_ >= 0 && flock(file_, LOCK_EX | LOCK_NB) == 0;
            isTaken_ = file_ >= 0 && !isLocked_ && errno == EWOULDBLOCK;
        } while (isLocked_ && IsRemoved(file_));
    }

    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    ~Place() {
        if (isLocked_ && !IsRemoved(file_)) {
            unlink(path_.c_str());
        }
        Close();
    }

    [[nodiscard]] bool IsTaken() const { return isTaken_; }

  private:
    void Close() const {
        if (file_ >= 0) {
            close(file_);
        }
    }

    std::string path_;
    int file_ = kNone;  // kNone if there is none: in that case the system cannot tell
    bool isLocked_ = false;
    bool isTaken_ = false;
};

InstanceGuard::InstanceGuard()
    : place_(std::make_unique<Place>()),
      anotherRunning_(place_->IsTaken()) {}

InstanceGuard::~InstanceGuard() = default;

}  // namespace brelex
