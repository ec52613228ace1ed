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

int OpenLockFile() {
    const int file = open(LockPath().c_str(),
                          O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, kOwnerOnly);
    if (file >= 0 && !IsOnlyOurs(file)) {
        close(file);
        return kNone;
    }
    return file;
}

}  // namespace

// An advisory lock. The system releases it however the process ends. The file itself stays, because
// removing it would let two copies lock two files of the same name.
class InstanceGuard::Place {
  public:
    Place() : file_(OpenLockFile()) {}

    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    ~Place() {
        if (file_ >= 0) {
            close(file_);
        }
    }

    [[nodiscard]] bool IsTaken() const {
        return file_ >= 0 && flock(file_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    }

  private:
    int file_;  // negative if there is none: in that case the system cannot tell
};

InstanceGuard::InstanceGuard()
    : place_(std::make_unique<Place>()),
      anotherRunning_(place_->IsTaken()) {}

InstanceGuard::~InstanceGuard() = default;

}  // namespace brelex
