// SPDX-License-Identifier: MIT
#include "platform/instance_guard.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <unistd.h>

namespace brelex {

namespace {

// Private to the user: the runtime folder, or else a name of the user's own in /tmp.
std::string LockPath() {
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime != nullptr && *runtime != '\0') {
        return std::string(runtime) + "/brevilexicon.lock";
    }
    return "/tmp/brevilexicon-" + std::to_string(getuid()) + ".lock";
}

}  // namespace

// An advisory lock: the system lets go of it when the process ends in whatever way. The file itself
// stays, as removing it would let two copies lock two files of one name.
class InstanceGuard::Place {
  public:
    Place()
        : file_(open(LockPath().c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, kOwnerOnly)) {}

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
    static constexpr mode_t kOwnerOnly = 0600;
    int file_;
};

InstanceGuard::InstanceGuard()
    : place_(std::make_unique<Place>()),
      anotherRunning_(place_->IsTaken()) {}

InstanceGuard::~InstanceGuard() = default;

}  // namespace brelex
