// SPDX-License-Identifier: MIT
#include "platform/system/instance_guard.h"

#include <windows.h>

namespace brelex {

// A named mutex of the user's session. The system closes it when the process ends.
class InstanceGuard::Place {
  public:
    Place() : mutex_(CreateMutexW(nullptr, FALSE, L"Local\\Brevilexicon.Instance")) {
        taken_ = mutex_ != nullptr && GetLastError() == ERROR_ALREADY_EXISTS;
    }

    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    ~Place() {
        if (mutex_ != nullptr) {
            CloseHandle(mutex_);
        }
    }

    [[nodiscard]] bool IsTaken() const { return taken_; }

  private:
    HANDLE mutex_;
    bool taken_ = false;
};

InstanceGuard::InstanceGuard()
    : place_(std::make_unique<Place>()),
      anotherRunning_(place_->IsTaken()) {}

InstanceGuard::~InstanceGuard() = default;

}  // namespace brelex
